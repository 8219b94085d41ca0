#include "analytics/HistoryText.h"

#include "analytics/DecodedEvents.h"
#include "support/CaseName.h"
#include "support/JoinedPieces.h"
#include "support/PrintQt.h"

#include <QTimeZone>

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

const QDateTime moment(QDate(2026, 11, 20), QTime(21, 44, 30), QTimeZone::utc());
const QDateTime longAgo(QDate(-1, 1, 1), QTime(0, 0), QTimeZone::utc());

QByteArray bytesOf(const HistoryText& text) {
    return joined(text.pieces());
}

/// The events that are left of a file when it is read and written again.
std::vector<AnalyticsEvent> rewritten(const QByteArray& file) {
    QString error;
    bool leftOut = true;
    const auto text = HistoryText::read(file, longAgo, leftOut, error);
    EXPECT_EQ(error, QString());
    EXPECT_FALSE(leftOut);
    return text ? decoded(bytesOf(*text)) : std::vector<AnalyticsEvent>();
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
    constexpr int count = 10'000;
    HistoryText text;
    for (int i = 0; i < count; ++i)
        text.append({u"event %1"_s.arg(i), moment, {{u"number"_s, QString::number(i)}}});
    const FilePieces pieces = text.pieces();
    QByteArray bytes;
    for (QByteArray piece = pieces(); !piece.isEmpty(); piece = pieces()) {
        EXPECT_LT(piece.size(), 300'000);
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

TEST(HistoryTextReading, ReadsEventsInOrder) {
    const auto events = rewritten(R"([
        {"name": "a", "timestamp": "2026-11-20T21:44:30Z", "properties": {"x": "1", "y": "2"}},
        {"properties": {}, "timestamp": "2026-11-20T22:44:30.000+01:00", "name": "b"}])");
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(events[0], (AnalyticsEvent{u"a"_s, moment, {{u"x"_s, u"1"_s}, {u"y"_s, u"2"_s}}}));
    EXPECT_EQ(events[1], (AnalyticsEvent{u"b"_s, moment, {}}));
}

TEST(HistoryTextReading, FindsNoEventsInAnEmptyArray) {
    EXPECT_TRUE(rewritten("[]").empty());
    EXPECT_TRUE(rewritten(" [ ] \n").empty());
}

TEST(HistoryTextReading, PassesOverUnknownKeys) {
    const auto events = rewritten(
        R"([{"name": "a", "extra": {"name": 1, "properties": [{"timestamp": null}]}, "more": true,
            "timestamp": "2026-11-20T21:44:30Z", "number": 1.5, "list": ["name", []],
            "properties": {"x": "1"}}])");
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0], (AnalyticsEvent{u"a"_s, moment, {{u"x"_s, u"1"_s}}}));
}

TEST(HistoryTextReading, UnderstandsEscapesWhereverTheyStand) {
    const auto events = rewritten(
        R"([{"n\u0061me": "\u00fc\/\"", "timestamp": "2026\u002d11-20T21:44:30Z",
            "properties": {"\ud83d\ude00": "\n"}}])");
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0], (AnalyticsEvent{u"ü/\""_s, moment, {{u"😀"_s, u"\n"_s}}}));
}

TEST(HistoryTextReading, TellsWhetherItLeavesEventsOut) {
    const QByteArray file = R"([
        {"name": "a", "timestamp": "2026-11-20T21:44:30Z", "properties": {}},
        {"name": "b", "timestamp": "2026-11-20T21:44:31Z", "properties": {}}])";
    QString error;
    bool leftOut = false;
    const auto later = HistoryText::read(file, moment, leftOut, error);
    ASSERT_TRUE(later.has_value());
    EXPECT_TRUE(leftOut);
    const auto events = decoded(bytesOf(*later));
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].name, u"b"_s);
}

TEST(HistoryTextReading, TakesTheLastOfEqualKeys) {
    const auto events = rewritten(
        R"([{"name": "a", "name": "b", "timestamp": "2026-11-20T21:44:30Z",
            "properties": {"x": "1"}, "properties": {"y": "1", "y": "2"}}])");
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0], (AnalyticsEvent{u"b"_s, moment, {{u"y"_s, u"2"_s}}}));
}

struct Unreadable {
    const char* name;
    QByteArray bytes;
    QString reason;
};

std::ostream& operator<<(std::ostream& out, const Unreadable& test) {
    return out << test.name;
}

class HistoryTextUnreadable : public testing::TestWithParam<Unreadable> {};

TEST_P(HistoryTextUnreadable, IsDescribed) {
    QString error;
    bool leftOut = false;
    EXPECT_FALSE(HistoryText::read(GetParam().bytes, longAgo, leftOut, error).has_value());
    EXPECT_EQ(error, GetParam().reason);
}

const QByteArray good = R"({"name": "a", "timestamp": "2026-11-20T21:44:30Z", "properties": {}})";

INSTANTIATE_TEST_SUITE_P(
    Files, HistoryTextUnreadable,
    testing::Values(
        Unreadable{"Empty", "", u"Invalid JSON at byte 1"_s},
        Unreadable{"Truncated", '[' + good + ',', u"Invalid JSON at byte 71"_s},
        Unreadable{"Unclosed", '[' + good, u"Invalid JSON at byte 70"_s},
        Unreadable{"Twice", '[' + good + "][]", u"Invalid JSON at byte 71"_s},
        Unreadable{"AfterANul", "[]" + QByteArray(1, '\0') + '[' + good + ']',
                   u"Invalid JSON at byte 3"_s},
        Unreadable{"Binary", QByteArray("\x7f\0\0", 3), u"Invalid JSON at byte 1"_s},
        Unreadable{"InvalidUtf8", "[{\"name\": \"\xff\"}]", u"Invalid JSON at byte 12"_s},
        Unreadable{"LoneSurrogate", R"([{"name": "\ud800"}])",
                   u"Invalid value for \"name\" of event 1"_s},
        Unreadable{"Object", "{}", u"The JSON is not an array"_s},
        Unreadable{"Number", "5", u"The JSON is not an array"_s},
        Unreadable{"HugeNumber", "[1e999]", u"Event 1 is not an object"_s},
        Unreadable{"ArrayOfNumbers", "[1]", u"Event 1 is not an object"_s},
        Unreadable{"BrokenUnknownValue", R"([{"x": tru}])", u"Invalid JSON at byte 11"_s},
        Unreadable{"ArrayOfArrays", '[' + good + ", []]", u"Event 2 is not an object"_s},
        Unreadable{"NoName", R"([{"timestamp": "2026-11-20T21:44:30Z", "properties": {}}])",
                   u"Missing value of event 1"_s},
        Unreadable{"NoTimestamp", R"([{"name": "a", "properties": {}}])",
                   u"Missing value of event 1"_s},
        Unreadable{"NoProperties", R"([{"name": "a", "timestamp": "2026-11-20T21:44:30Z"}])",
                   u"Missing value of event 1"_s},
        Unreadable{"NumericName", R"([{"name": 1}])", u"Invalid value for \"name\" of event 1"_s},
        Unreadable{"NullName", R"([{"name": null}])", u"Invalid value for \"name\" of event 1"_s},
        Unreadable{"ObjectAsName", R"([{"name": {}}])", u"Invalid value for \"name\" of event 1"_s},
        Unreadable{"NumericTimestamp", '[' + good + R"(,{"timestamp": 796945470.5}])",
                   u"Invalid value for \"timestamp\" of event 2"_s},
        Unreadable{"DateOnly", R"([{"timestamp": "2026-11-20"}])",
                   u"Invalid value for \"timestamp\" of event 1"_s},
        Unreadable{"ListAsProperties", R"([{"properties": ["a", "b"]}])",
                   u"Invalid value for \"properties\" of event 1"_s},
        Unreadable{"TextAsProperties", R"([{"properties": "a"}])",
                   u"Invalid value for \"properties\" of event 1"_s},
        Unreadable{"NumericProperty", R"([{"properties": {"a": 1}}])",
                   u"Invalid value for \"properties\" of event 1"_s},
        Unreadable{"LoneSurrogateInAPropertysName", R"([{"properties": {"\udfa4": "a"}}])",
                   u"Invalid value for \"properties\" of event 1"_s},
        Unreadable{"NestedProperty", R"([{"properties": {"a": {}}}])",
                   u"Invalid value for \"properties\" of event 1"_s},
        Unreadable{"DeeplyNested", "[{\"x\": " + QByteArray(2'000'000, '['),
                   u"The JSON is nested too deeply"_s}),
    byMember<&Unreadable::name>);

} // namespace
} // namespace tessaline
