#include "settings/JsonReader.h"

#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

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
