#include "settings/DecodedSettings.h"
#include "support/CaseName.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

struct BrokenFile {
    const char* name;
    QByteArray bytes;
    QString error;
};

std::ostream& operator<<(std::ostream& out, const BrokenFile& test) {
    return out << test.name;
}

class BrokenFileDecoding : public testing::TestWithParam<BrokenFile> {};

TEST_P(BrokenFileDecoding, FailsWithOneLine) {
    EXPECT_EQ(decodingError(GetParam().bytes), GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    Files, BrokenFileDecoding,
    testing::Values(
        BrokenFile{"Empty", "", u"Invalid JSON at byte 1"_s},
        BrokenFile{"OnlyAByteOrderMark", "\xEF\xBB\xBF", u"Invalid JSON at byte 4"_s},
        BrokenFile{"Binary", QByteArray("\x00\xff\x7f\x00", 4), u"Invalid JSON at byte 1"_s},
        BrokenFile{"Truncated", R"({"fontSize": 20, "wid)", u"Invalid JSON at byte 22"_s},
        BrokenFile{"TruncatedNumber", R"({"fontSize": 20)", u"Invalid JSON at byte 16"_s},
        BrokenFile{"TrailingText", R"({"fontSize": 20} x)", u"Invalid JSON at byte 18"_s},
        BrokenFile{"TrailingComma", R"({"fontSize": 20,})", u"Invalid JSON at byte 17"_s},
        BrokenFile{"Comment", "{} // defaults", u"Invalid JSON at byte 4"_s},
        BrokenFile{"NotANumber", R"({"fontSize": NaN})", u"Invalid JSON at byte 14"_s},
        BrokenFile{"InvalidUtf8", "{\"notePath\": \"\xC3(\"}", u"Invalid JSON at byte 15"_s},
        BrokenFile{"InvalidUtf8InUnknownKey", "{\"x\": \"\xFF\"}", u"Invalid JSON at byte 8"_s},
        BrokenFile{"AfterANul", QByteArray("{\"fontSize\": 20}\0{\"width\": 500}", 31),
                   u"Invalid JSON at byte 17"_s},
        BrokenFile{"NulAtTheEnd", QByteArray("{}\n\0", 4), u"Invalid JSON at byte 4"_s},
        BrokenFile{"NulInAText", QByteArray("{\"notePath\": \"a\0b\"}", 19),
                   u"Invalid JSON at byte 16"_s},
        BrokenFile{"HalfOfAPairInABrokenText", R"({"x": "\ud83c \q"})",
                   u"Invalid JSON at byte 16"_s},
        BrokenFile{"TwoLargeExponents", R"({"x": 1e400e400})", u"Invalid JSON at byte 12"_s},
        BrokenFile{"ErrorAfterALargeNumber", R"({"x": 1e400, "y": tru})",
                   u"Invalid JSON at byte 22"_s},
        BrokenFile{"Array", "[]", u"The JSON is not an object"_s},
        BrokenFile{"Null", "null", u"The JSON is not an object"_s},
        BrokenFile{"Text", R"("config")", u"The JSON is not an object"_s}),
    byMember<&BrokenFile::name>);

TEST(BrokenSettings, RefusesMillionsOfNestedBracketsWithoutBuildingThem) {
    for (const char* opening : {"[", "{\"x\":"}) {
        EXPECT_EQ(decodingError("{\"x\": " + QByteArray(opening).repeated(2'000'000)),
                  u"The JSON is nested too deeply"_s);
    }
}

TEST(BrokenSettings, RefusesMillionsOfValuesWithoutBuildingThem) {
    EXPECT_EQ(decodingError("{\"x\": [" + QByteArray("0,").repeated(5'000'000) + "0]}"),
              u"The JSON holds too many values"_s);
}

TEST(BrokenSettings, CountsNestingOutsideOfStringsOnly) {
    const QByteArray brackets(1000, '[');
    EXPECT_EQ(decoded("{\"notePath\": \"\\\"" + brackets + "\\\\\"}").notePath,
              u"\"%1\\"_s.arg(QString::fromLatin1(brackets)));
}

TEST(BrokenSettings, AcceptsNestingAsDeepAsFiveHundredAndTwelveLevels) {
    const QByteArray open(511, '[');
    const QByteArray close(511, ']');
    EXPECT_EQ(decoded("{\"x\": " + open + close + "}"), PersistedSettings());
    EXPECT_EQ(decodingError("{\"x\": [" + open + close + "]}"), u"The JSON is nested too deeply"_s);
}

TEST(BrokenSettings, TakesALargeTextAndManyUnknownKeys) {
    QByteArray json = "{";
    for (int key = 0; key < 200'000; ++key)
        json += "\"k" + QByteArray::number(key) + "\": [" + QByteArray::number(key) + "],";
    json += "\"notePath\": \"" + QByteArray(5'000'000, 'p') + "\"}";
    EXPECT_EQ(decoded(json).notePath.size(), 5'000'000);
}

} // namespace
} // namespace tessaline
