#include "export/JsonWriter.h"

#include <QString>

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

QByteArray written(QStringView text) {
    QByteArray out;
    JsonWriter json(out);
    json.beginArray();
    json.string(text);
    json.endArray();
    return out.simplified().chopped(2).sliced(2);
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

TEST(JsonWriter, EscapesWhatJsonDoesNotAllow) {
    EXPECT_EQ(written(u"\"\\/\n\r\t"), R"("\"\\/\n\r\t")");
    EXPECT_EQ(written(QString(QChar(0)) + u"\x01\x1F\x7F"_s), "\"\\u0000\\u0001\\u001f\x7F\"");
}

TEST(JsonWriter, KeepsOtherCharactersAsUtf8) {
    EXPECT_EQ(written(u"é 👋 \u2028"), "\"é 👋 \u2028\"");
}

TEST(JsonWriter, EscapesLoneSurrogates) {
    const QString high = QChar(0xD83D);
    const QString low = QChar(0xDC4B);
    EXPECT_EQ(written(high), R"("\ud83d")");
    EXPECT_EQ(written(low), R"("\udc4b")");
    EXPECT_EQ(written(high + u'x' + low), R"("\ud83dx\udc4b")");
    EXPECT_EQ(written(low + high), R"("\udc4b\ud83d")");
    EXPECT_EQ(written(high + high + low + low), "\"\\ud83d👋\\udc4b\"");
}

} // namespace
} // namespace tessaline
