#include "analytics/HistoryText.h"

#include "analytics/DecodedEvents.h"
#include "support/JoinedPieces.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

const QDateTime moment(QDate(2026, 11, 20), QTime(21, 44, 30), Qt::UTC);

QByteArray bytesOf(const HistoryText& text) {
    return joined(text.pieces());
}

TEST(HistoryText, IsAnEmptyArrayAtFirst) {
    EXPECT_TRUE(HistoryText().isEmpty());
    EXPECT_TRUE(decoded(bytesOf(HistoryText())).empty());
}

TEST(HistoryText, IsPrettyPrintedWithItsKeysInOrder) {
    HistoryText text;
    text.append({u"a"_s, moment, {{u"y"_s, u"2"_s}, {u"x"_s, u"1"_s}}});
    text.append({u"b"_s, moment, {}});
    EXPECT_FALSE(text.isEmpty());
    EXPECT_EQ(bytesOf(text), R"([
  {
    "name": "a",
    "timestamp": "2026-11-20T21:44:30Z",
    "properties": {
      "x": "1",
      "y": "2"
    }
  },
  {
    "name": "b",
    "timestamp": "2026-11-20T21:44:30Z",
    "properties": {}
  }
]
)");
}

TEST(HistoryText, GivesEveryTextBack) {
    const QString odd = u"\n  \"\\\t€😀\u2028\0 ends"_s;
    HistoryText text;
    text.append({odd, moment, {{odd, odd}, {u""_s, u""_s}}});
    const auto events = decoded(bytesOf(text));
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0], (AnalyticsEvent{odd, moment, {{odd, odd}, {u""_s, u""_s}}}));
}

TEST(HistoryText, StaysReadableWithTextsThatAreNotUnicode) {
    HistoryText text;
    text.append({QString(QChar(0xd800)), moment, {{u"a"_s, QString(QChar(0xdfff))}}});
    EXPECT_EQ(decoded(bytesOf(text)).size(), 1U);
}

TEST(HistoryText, HandsALongHistoryOutInSmallPieces) {
    constexpr int count = 5000;
    HistoryText text;
    for (int i = 0; i < count; ++i)
        text.append({u"event %1"_s.arg(i), moment, {{u"number"_s, QString::number(i)}}});
    const FilePieces pieces = text.pieces();
    QByteArray bytes;
    for (QByteArray piece = pieces(); !piece.isEmpty(); piece = pieces()) {
        EXPECT_LT(piece.size(), 100'000);
        bytes += piece;
    }
    EXPECT_EQ(bytes.size(), text.size());
    const auto events = decoded(bytes);
    ASSERT_EQ(events.size(), std::size_t{count});
    for (int i = 0; i < count; ++i)
        ASSERT_EQ(events[std::size_t(i)].name, u"event %1"_s.arg(i));
}

TEST(HistoryText, CanBeHandedOutAgain) {
    HistoryText text;
    text.append({u"a"_s, moment, {}});
    const QByteArray first = bytesOf(text);
    text.append({u"b"_s, moment, {}});
    EXPECT_EQ(decoded(first).size(), 1U);
    EXPECT_EQ(decoded(bytesOf(text)).size(), 2U);
}

} // namespace
} // namespace tessaline
