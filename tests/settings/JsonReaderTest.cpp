#include "settings/JsonReader.h"

#include "settings/JsonWriter.h"
#include "support/CaseName.h"
#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <ostream>
#include <random>
#include <string_view>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::Pointee;

/// Fails the test and gives null when the text is refused.
JsonValue parsed(const QByteArray& text) {
    QString error;
    const auto value = parseJson(text, &error);
    EXPECT_TRUE(value.has_value()) << text.left(200).toStdString() << ": " << error.toStdString();
    return value.value_or(JsonValue());
}

TEST(JsonReader, KnowsEveryKindOfValue) {
    EXPECT_TRUE(parsed(" null ").isNull());
    EXPECT_THAT(parsed("true").as<bool>(), Pointee(true));
    EXPECT_THAT(parsed("-7").as<double>(), Pointee(-7.0));
    EXPECT_THAT(parsed("7.25e1").as<double>(), Pointee(72.5));
    EXPECT_THAT(parsed(R"("\u00fc \ud83c\udfa4\u0000")").as<QString>(),
                Pointee(QString::fromUtf8("ü 🎤\0", 8)));
    EXPECT_EQ(parsed("[[], {}, 1]").as<JsonValue::Array>()->size(), 3U);
    EXPECT_EQ(parsed("true").as<double>(), nullptr);
    EXPECT_EQ(parsed("1").as<bool>(), nullptr);
    EXPECT_EQ(parsed("[]").as<JsonValue::Object>(), nullptr);
}

TEST(JsonReader, PassesOverAByteOrderMark) {
    EXPECT_THAT(parsed("\xef\xbb\xbf 5").as<double>(), Pointee(5.0));
}

TEST(JsonReader, ReadsNumbersTooSmallForDoublesAsZero) {
    EXPECT_THAT(parsed("1e-400").as<double>(), Pointee(0.0));
    EXPECT_THAT(parsed("-1e-400").as<double>(), Pointee(0.0));
}

struct Refused {
    const char* name;
    QByteArray text;
    QString reason;
};

std::ostream& operator<<(std::ostream& out, const Refused& test) {
    return out << test.name;
}

class JsonReaderRefused : public testing::TestWithParam<Refused> {};

TEST_P(JsonReaderRefused, IsDescribed) {
    QString error;
    EXPECT_FALSE(parseJson(GetParam().text, &error).has_value());
    EXPECT_EQ(error, GetParam().reason);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, JsonReaderRefused,
    testing::Values(Refused{"Nothing", "", u"Invalid JSON at byte 1"_s},
                    Refused{"White", " \n", u"Invalid JSON at byte 3"_s},
                    Refused{"TwoValues", "1 2", u"Invalid JSON at byte 3"_s},
                    Refused{"AfterANul", QByteArray("[]\0", 3), u"Invalid JSON at byte 3"_s},
                    Refused{"HalfALiteral", "[tru]", u"Invalid JSON at byte 5"_s},
                    Refused{"LongLiteral", "nullx", u"Invalid JSON at byte 5"_s},
                    Refused{"LeadingZero", "01", u"Invalid JSON at byte 2"_s},
                    Refused{"OnlyAMinus", "-", u"Invalid JSON at byte 2"_s},
                    Refused{"NoFraction", "1.", u"Invalid JSON at byte 3"_s},
                    Refused{"NoExponent", "1e+", u"Invalid JSON at byte 4"_s},
                    Refused{"Plus", "+1", u"Invalid JSON at byte 1"_s},
                    Refused{"OpenText", R"("a)", u"Invalid JSON at byte 3"_s},
                    Refused{"EndsInAnEscape", R"("\)", u"Invalid JSON at byte 3"_s},
                    Refused{"UnknownEscape", R"("\x")", u"Invalid JSON at byte 3"_s},
                    Refused{"ShortEscape", R"("\u12")", u"Invalid JSON at byte 6"_s},
                    Refused{"LineFeedInText", "\"a\n\"", u"Invalid JSON at byte 3"_s},
                    Refused{"OverlongUtf8", "\"\xc0\x80\"", u"Invalid JSON at byte 2"_s},
                    Refused{"HalfACharacter", "\"\xc3\"", u"Invalid JSON at byte 2"_s},
                    Refused{"CommaBeforeElements", "[,1]", u"Invalid JSON at byte 2"_s},
                    Refused{"CommaAfterElements", "[1,]", u"Invalid JSON at byte 4"_s},
                    Refused{"NoComma", "[1 2]", u"Invalid JSON at byte 4"_s},
                    Refused{"OpenArray", "[1", u"Invalid JSON at byte 3"_s},
                    Refused{"WrongBracket", "[1}", u"Invalid JSON at byte 3"_s},
                    Refused{"CommaAfterMembers", R"({"a":1,})", u"Invalid JSON at byte 8"_s},
                    Refused{"NoColon", R"({"a" 1})", u"Invalid JSON at byte 6"_s},
                    Refused{"NoValue", R"({"a":})", u"Invalid JSON at byte 6"_s},
                    Refused{"NumberAsKey", "{1:1}", u"Invalid JSON at byte 2"_s},
                    Refused{"TooDeep", QByteArray(513, '[') + QByteArray(513, ']'),
                            u"The JSON is nested too deeply"_s}),
    byMember<&Refused::name>);

TEST(JsonReader, ReadsTheDeepestNesting) {
    parsed(QByteArray(512, '[') + QByteArray(512, ']'));
}

/// The text with some bytes replaced, left out or put in. None of them makes half of a surrogate
/// pair, over which readers differ.
QByteArray damaged(QByteArray text, std::minstd_rand& random) {
    constexpr std::string_view bytes = "[]{}:,\"\\ \n\t0123.-+truefalsn/\x01\xc3\xbc";
    const auto below = [&random](qsizetype limit) { return qsizetype(random() % quint32(limit)); };
    for (qsizetype change = below(4); change >= 0; --change) {
        const char byte = bytes[std::size_t(below(qsizetype(bytes.size())))];
        const qsizetype at = below(text.size());
        text.replace(at, below(2), QByteArray(below(2), byte));
    }
    return text;
}

TEST(JsonReader, AgreesWithAnotherReaderOnDamagedTexts) {
    using Other = nlohmann::json;
    constexpr int count = 50'000;
    const QByteArray text = R"( {"a": [1, -2.5e1, 0.125, true], "b\n\u00fc": {"c": null, "": ""},
        "ü": [[], {}, "\"\\ü", false], "a": 100} )";
    std::minstd_rand random(1);
    int valid = 0;
    for (int i = 0; i < count; ++i) {
        const QByteArray bytes = damaged(text, random);
        const auto other = Other::parse(bytes.begin(), bytes.end(), nullptr, false);
        const auto value = parseJson(bytes);
        ASSERT_EQ(value.has_value(), !other.is_discarded()) << bytes.toStdString();
        if (!value) continue;
        ++valid;
        QByteArray written;
        JsonWriter(written, JsonWriter::Layout::compact).value(*value);
        ASSERT_EQ(Other::parse(written.toStdString()), other) << bytes.toStdString();
    }
    EXPECT_GT(valid, count / 20);
    EXPECT_LT(valid, count / 2);
}

TEST(JsonReader, KeepsTheOrderOfMembersAndFindsTheLastOfEqualNames) {
    const JsonValue object = parsed(R"({"z": 1, "a": {"z": 2}, "z": 3})");
    const auto& members = *object.as<JsonValue::Object>();
    ASSERT_EQ(members.size(), 3U);
    EXPECT_EQ(members[0].name, u"z"_s);
    EXPECT_EQ(members[1].name, u"a"_s);
    ASSERT_NE(object.find(u"z"), nullptr);
    EXPECT_THAT(object.find(u"z")->as<double>(), Pointee(3.0));
    ASSERT_NE(object.find(u"a"), nullptr);
    EXPECT_THAT(object.find(u"a")->find(u"z")->as<double>(), Pointee(2.0));
    EXPECT_EQ(object.find(u"Z"), nullptr);
    EXPECT_EQ(parsed("[1]").find(u"z"), nullptr);
}

TEST(JsonReader, ReadsTheLargestArrayAndRefusesALargerOne) {
    const auto numbers = [](int count) {
        return "[" + QByteArray("7,").repeated(count - 1) + "7]";
    };
    EXPECT_EQ(parsed(numbers(999'999)).as<JsonValue::Array>()->size(), 999'999U);
    EXPECT_FALSE(parseJson(numbers(1'000'000)).has_value());
}

// What a reader meets that goes back to the start at each of them does not end within any patience.
TEST(JsonReader, PassesOverHundredsOfThousandsOfUnusableValues) {
    const QByteArray pair = R"(1e400, "\udfa4")";
    const JsonValue value = parsed("[" + (pair + ',').repeated(200'000) + pair + "]");
    const auto& array = *value.as<JsonValue::Array>();
    ASSERT_EQ(array.size(), 400'002U);
    for (const JsonValue& element : {array.front(), array.back()})
        EXPECT_NE(element.as<JsonValue::Array>(), nullptr);
}

TEST(JsonReader, ReadsFilesUpToTheirGreatestSize) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"file.json"_s);
    QString error;
    EXPECT_FALSE(readJsonFile(path, &error).has_value());
    EXPECT_EQ(error, u"No such file or directory"_s);
    putFile(path, "7" + QByteArray(jsonFileLimit - 1, ' '));
    const auto value = readJsonFile(path, &error);
    ASSERT_TRUE(value.has_value());
    EXPECT_THAT(value->as<double>(), Pointee(7.0));
    putFile(path, "7" + QByteArray(jsonFileLimit, ' '));
    EXPECT_FALSE(readJsonFile(path, &error).has_value());
    EXPECT_EQ(error, u"The file is larger than 16777216 bytes"_s);
}

} // namespace
} // namespace tessaline
