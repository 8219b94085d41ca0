#include "cli/ControlRequest.h"

#include "cli/CommandTable.h"
#include "settings/PersistedSettings.h"
#include "settings/ScrollRate.h"
#include "settings/SourceType.h"
#include "support/CaseName.h"
#include "support/PrintQt.h"

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// Every request that there is without an argument, and one for each choice of the others.
std::vector<QStringList> allRequests() {
    std::vector<QStringList> requests;
    for (const ControlAction& action : controlActions()) {
        const QString name = action.name.toString();
        if (!action.value.isTaken()) requests.push_back({name});
        for (const QStringView choice : action.value.choices)
            requests.push_back({name, choice.toString()});
    }
    requests.push_back({u"speed"_s, u"1.25"_s});
    return requests;
}

class ControlRequestWords : public testing::TestWithParam<QStringList> {};

TEST_P(ControlRequestWords, AreReadAndWrittenAlike) {
    QString error;
    const auto request = ControlRequest::parse(GetParam(), &error);
    ASSERT_TRUE(request.has_value()) << error.toStdString();
    EXPECT_EQ(request->words(), GetParam());
    EXPECT_EQ(controlActionNamed(GetParam().first())->command, request->command);
}

INSTANTIATE_TEST_SUITE_P(Actions, ControlRequestWords, testing::ValuesIn(allRequests()), byValue);

TEST(ControlRequest, HasAnActionForEveryCommandOnce) {
    std::vector<int> commands;
    for (const ControlAction& action : controlActions())
        commands.push_back(static_cast<int>(action.command));
    std::vector<int> expected(static_cast<std::size_t>(ControlCommand::status) + 1);
    for (std::size_t i = 0; i < expected.size(); ++i)
        expected[i] = static_cast<int>(i);
    EXPECT_EQ(commands, expected);
}

struct Speed {
    QString given;
    QString argument;
    double speed;
};

class ControlRequestSpeed : public testing::TestWithParam<Speed> {};

TEST_P(ControlRequestSpeed, IsANumberInPlainDecimals) {
    const auto request = ControlRequest::parse({u"speed"_s, GetParam().given}, nullptr);
    ASSERT_TRUE(request.has_value());
    EXPECT_EQ(request->argument, GetParam().argument);
    EXPECT_EQ(request->speed(), GetParam().speed);
}

INSTANTIATE_TEST_SUITE_P(Values, ControlRequestSpeed,
                         testing::Values(Speed{u"0"_s, u"0"_s, 0}, Speed{u"-0"_s, u"0"_s, 0},
                                         Speed{u"5"_s, u"5"_s, 5}, Speed{u"5.00"_s, u"5"_s, 5},
                                         Speed{u".5"_s, u"0.5"_s, 0.5},
                                         Speed{u"25e-1"_s, u"2.5"_s, 2.5},
                                         Speed{u"0.001"_s, u"0.001"_s, 0.001}),
                         byMember<&Speed::given>);

class ControlRequestMistake : public testing::TestWithParam<const char*> {};

TEST_P(ControlRequestMistake, InASpeedIsNamed) {
    const QString given = QString::fromUtf8(GetParam());
    QString error;
    EXPECT_EQ(ControlRequest::parse({u"speed"_s, given}, &error), std::nullopt);
    EXPECT_EQ(error, u"speed '"_s + given + u"' is not a number from 0 to 5"_s);
    EXPECT_EQ(ControlRequest::parse({u"speed"_s, given}, nullptr), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Values, ControlRequestMistake,
                         testing::Values("-0.01", "5.01", "nan", "inf", "-inf", "", "fast", "2,5",
                                         "0x2", "2x", "1e9", "%1"),
                         byValue);

TEST(ControlRequest, RefusesWhatIsNoChoice) {
    QString error;
    EXPECT_EQ(ControlRequest::parse({u"rate"_s, u"Fast"_s}, &error), std::nullopt);
    EXPECT_EQ(error, u"rate 'Fast' is not slow, medium or fast"_s);
    EXPECT_EQ(ControlRequest::parse({u"source"_s, u"appleNotes"_s}, &error), std::nullopt);
    EXPECT_EQ(error, u"source 'appleNotes' is not obsidian or clipboard"_s);
}

TEST(ControlRequest, OffersWhatTheSettingsKnow) {
    QStringList rates;
    for (const ScrollRate rate : allScrollRates)
        rates += rawValue(rate);
    QStringList sources;
    for (const SourceType source : availableSources)
        sources += rawValue(source);
    EXPECT_EQ(controlActionNamed(u"rate")->value.name, rates.join(u'|'));
    EXPECT_EQ(controlActionNamed(u"source")->value.name, sources.join(u'|'));
    for (const ControlAction& action : controlActions()) {
        QStringList choices;
        for (const QStringView choice : action.value.choices)
            choices += choice.toString();
        if (!choices.isEmpty()) {
            EXPECT_EQ(choices.join(u'|'), action.value.name);
        }
    }
    EXPECT_EQ(ControlRequest::mostSpeed, PersistedSettings::maxScrollSpeed);
}

} // namespace
} // namespace tessaline
