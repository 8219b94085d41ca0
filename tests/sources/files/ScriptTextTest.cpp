#include "sources/files/ScriptText.h"

#include "support/CaseName.h"
#include "support/PrintQt.h"

#include <QStringEncoder>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using Encoding = QStringConverter::Encoding;

const QString talk = u"# Żółć\r\n\r\nEin Satz mit „Anführung“ – und ein Ende.\r\n"_s;

QByteArray encoded(const QString& text, Encoding encoding, bool isMarked) {
    QStringEncoder encode(encoding, isMarked ? QStringConverter::Flag::WriteBom
                                             : QStringConverter::Flag::Default);
    return encode(text);
}

struct UnicodeCase {
    const char* name;
    Encoding encoding;
    bool isMarked;
};

class UnicodeScript : public testing::TestWithParam<UnicodeCase> {};

TEST_P(UnicodeScript, IsReadAsItWasWritten) {
    for (const QString& text : {talk, u"hi"_s, u"Привет, мир! Как твои дела?\n"_s.repeated(500)})
        EXPECT_EQ(decodeScript(encoded(text, GetParam().encoding, GetParam().isMarked)), text);
}

INSTANTIATE_TEST_SUITE_P(, UnicodeScript,
                         testing::Values(UnicodeCase{"Utf8", Encoding::Utf8, false},
                                         UnicodeCase{"Utf8Marked", Encoding::Utf8, true},
                                         UnicodeCase{"LittleEndian", Encoding::Utf16LE, false},
                                         UnicodeCase{"LittleEndianMarked", Encoding::Utf16LE, true},
                                         UnicodeCase{"BigEndian", Encoding::Utf16BE, false},
                                         UnicodeCase{"BigEndianMarked", Encoding::Utf16BE, true}),
                         byMember<&UnicodeCase::name>);

TEST(ScriptText, OfEightBitsIsWindows1252) {
    EXPECT_EQ(decodeScript("caf\xE9 \x80 5 \x96 \x93so\x94"), u"café € 5 – “so”"_s);
}

TEST(ScriptText, KeepsItsUtf8WhereAFewBytesAreBroken) {
    const QByteArray good = u"Grüße, schöne Wörter überall. "_s.repeated(20).toUtf8();
    EXPECT_EQ(decodeScript(good + '\xC3'),
              u"Grüße, schöne Wörter überall. "_s.repeated(20) + QChar::ReplacementCharacter);
}

TEST(ScriptText, MayBeEmpty) {
    EXPECT_EQ(decodeScript(""), QString());
    EXPECT_EQ(decodeScript("\xEF\xBB\xBF"), QString());
    EXPECT_EQ(decodeScript("\xFF\xFE"), QString());
}

TEST(ScriptText, IsNothingThatLooksLikeData) {
    QByteArray noise;
    for (quint32 state = 1; noise.size() < 5000; state = state * 1664525 + 1013904223)
        if (const char byte = char(state >> 24)) noise += byte;
    for (const QByteArray& data :
         {noise, QByteArray(1000, '\0'),
          QByteArray("\x7F"
                     "ELF\x02\x01\x01\0\0\0\0",
                     11),
          QByteArray("a text with a \0 in it", 21), QByteArray("\xFF\xFE\x00\xD8", 4)})
        EXPECT_EQ(decodeScript(data), std::nullopt);
    EXPECT_TRUE(isBinary(noise));
    EXPECT_FALSE(isBinary(encoded(talk, Encoding::Utf16BE, false)));
    EXPECT_FALSE(isBinary(talk.toUtf8().chopped(1).first(6))); // within a character
}

} // namespace
} // namespace tessaline
