#include "settings/JsonWriter.h"

#include "settings/JsonReader.h"

#include <QString>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

QByteArray written(QStringView text) {
    QByteArray out;
    JsonWriter(out).string(text);
    return out;
}

QByteArray writtenExactly(QStringView text) {
    QByteArray out;
    JsonWriter(out).exactString(text);
    return out;
}

QByteArray writtenReal(double value) {
    QByteArray out;
    JsonWriter(out).real(value);
    return out;
}

TEST(JsonWriter, IndentsByTwoSpacesAndKeepsTheOrder) {
    QByteArray out;
    JsonWriter json(out);
    json.beginObject();
    json.key("b");
    json.number(1.5);
    json.key("a");
    json.beginArray();
    json.boolean(true);
    json.beginObject();
    json.endObject();
    json.endArray();
    json.key("c");
    json.beginArray();
    json.endArray();
    json.endObject();
    EXPECT_EQ(out, "{\n  \"b\": 1.5,\n  \"a\": [\n    true,\n    {}\n  ],\n  \"c\": []\n}\n");
}

TEST(JsonWriter, WritesOnOneLineWithoutSpacesWhereThatIsAskedFor) {
    QByteArray out;
    JsonWriter json(out, JsonWriter::Layout::compact);
    json.beginObject();
    json.key("a");
    json.beginArray();
    json.number(1);
    json.null();
    json.endArray();
    json.key(u"\"é\"");
    json.beginObject();
    json.endObject();
    json.endObject();
    EXPECT_EQ(out, R"({"a":[1,null],"\"é\"":{}})");
}

TEST(JsonWriter, GoesOnInsideWhatOthersWrote) {
    QByteArray out = "[";
    for (const bool isFirst : {true, false}) {
        JsonWriter json = JsonWriter::inside(out, 1, isFirst);
        json.beginObject();
        json.key("a");
        json.number(1);
        json.endObject();
    }
    EXPECT_EQ(out, "[\n  {\n    \"a\": 1\n  },\n  {\n    \"a\": 1\n  }");
}

TEST(JsonWriter, WritesAValueAsItWasRead) {
    const QByteArray text = R"({"b":[true,null,1,0.5,1e+20,"é"],"a":{"a":-3}})";
    const auto value = parseJson(text);
    ASSERT_TRUE(value);
    QByteArray out;
    JsonWriter(out, JsonWriter::Layout::compact).value(*value);
    EXPECT_EQ(out, text);
}

TEST(JsonWriter, EscapesWhatJsonDoesNotAllow) {
    EXPECT_EQ(written(u"\"\\/\n\r\t\b\f"), R"("\"\\/\n\r\t\b\f")");
    EXPECT_EQ(writtenExactly(u"\"\\/\n\r\t\b\f"), R"("\"\\/\n\r\t\u0008\u000c")");
    EXPECT_EQ(written(QString(QChar(0)) + u"\x01\x1F\x7F"_s), "\"\\u0000\\u0001\\u001f\x7F\"");
}

TEST(JsonWriter, KeepsOtherCharactersAsUtf8) {
    EXPECT_EQ(written(u"é 👋 \u2028"), "\"é 👋 \u2028\"");
    EXPECT_EQ(writtenExactly(u"é 👋 \u2028"), "\"é 👋 \u2028\"");
}

TEST(JsonWriter, EscapesLoneSurrogatesWhereEveryUnitCounts) {
    const QString high = QChar(0xD83D);
    const QString low = QChar(0xDC4B);
    EXPECT_EQ(writtenExactly(high), R"("\ud83d")");
    EXPECT_EQ(writtenExactly(low), R"("\udc4b")");
    EXPECT_EQ(writtenExactly(high + u'x' + low), R"("\ud83dx\udc4b")");
    EXPECT_EQ(writtenExactly(low + high), R"("\udc4b\ud83d")");
    EXPECT_EQ(writtenExactly(high + high + low + low), "\"\\ud83d👋\\udc4b\"");
    EXPECT_EQ(written(high), "\"?\"");
}

// The files were written by another library once.
TEST(JsonWriter, WritesRealNumbersAsFilesHaveThem) {
    for (const double value : {0.0, -0.0, 16.0, -120.0, 0.1, 1e-4, 1e-5, 1e14, 1e15, 1e16, 1e20,
                               -1.5e300, 5e-324, 1.7976931348623157e308, 123456789012345.6})
        EXPECT_EQ(writtenReal(value).toStdString(), nlohmann::json(value).dump());
    for (int steps = -20'000; steps < 20'000; ++steps)
        ASSERT_EQ(writtenReal(steps / 64.0).toStdString(), nlohmann::json(steps / 64.0).dump());
}

TEST(JsonWriter, WritesEveryRealNumberSoThatItComesBack) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 20'000; ++i) {
        const std::uint64_t bits = random();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        if (!std::isfinite(value)) continue;
        const QByteArray text = writtenReal(value);
        ASSERT_EQ(nlohmann::json::parse(text.begin(), text.end()).get<double>(), value);
    }
}

} // namespace
} // namespace tessaline
