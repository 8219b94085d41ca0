#include "settings/ScrollRate.h"
#include "support/CaseName.h"

#include <gmock/gmock.h>

#include <ostream>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

struct RateCase {
    ScrollRate rate;
    QString raw;
    QString title;
    double scrollFactor;
    double statsFactor;
};

std::ostream& operator<<(std::ostream& out, const RateCase& test) {
    return out << test.raw.toStdString();
}

class ScrollRateTable : public testing::TestWithParam<RateCase> {};

TEST_P(ScrollRateTable, HasItsStringsAndNumbers) {
    const RateCase& expected = GetParam();
    EXPECT_EQ(rawValue(expected.rate), expected.raw);
    EXPECT_EQ(scrollRateFromRawValue(expected.raw), expected.rate);
    EXPECT_EQ(title(expected.rate), expected.title);
    EXPECT_EQ(scrollFactor(expected.rate), expected.scrollFactor);
    EXPECT_EQ(statsFactor(expected.rate), expected.statsFactor);
    EXPECT_EQ(statsFactor(expected.rate), scrollFactor(expected.rate) * 1.6);
}

INSTANTIATE_TEST_SUITE_P(
    AllRates, ScrollRateTable,
    testing::Values(RateCase{ScrollRate::slow, u"slow"_s, u"Slow"_s, 4.8, 7.68},
                    RateCase{ScrollRate::medium, u"medium"_s, u"Medium"_s, 6.4, 10.240000000000002},
                    RateCase{ScrollRate::fast, u"fast"_s, u"Fast"_s, 9.6, 15.36}),
    byMember<&RateCase::title>);

TEST(ScrollRate, ListsAllCasesInDeclarationOrder) {
    EXPECT_THAT(allScrollRates,
                testing::ElementsAre(ScrollRate::slow, ScrollRate::medium, ScrollRate::fast));
}

TEST(ScrollRate, IsNotBuiltFromAnyOtherString) {
    for (const auto* raw : {u"Medium", u"FAST", u"", u"slow ", u"turbo"}) {
        EXPECT_EQ(scrollRateFromRawValue(raw), std::nullopt)
            << QStringView(raw).toString().toStdString();
    }
}

} // namespace
} // namespace tessaline
