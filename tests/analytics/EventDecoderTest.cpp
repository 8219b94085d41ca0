#include "analytics/EventDecoder.h"

#include "analytics/DecodedEvents.h"
#include "support/CaseName.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

const QDateTime moment(QDate(2026, 11, 20), QTime(21, 44, 30), Qt::UTC);

TEST(EventDecoder, ReadsEventsInOrder) {
    const auto events = decoded(R"([
        {"name": "a", "timestamp": "2026-11-20T21:44:30Z", "properties": {"x": "1", "y": "2"}},
        {"properties": {}, "timestamp": "2026-11-20T22:44:30.000+01:00", "name": "b"}])");
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(events[0], (AnalyticsEvent{u"a"_s, moment, {{u"x"_s, u"1"_s}, {u"y"_s, u"2"_s}}}));
    EXPECT_EQ(events[1], (AnalyticsEvent{u"b"_s, moment, {}}));
}

TEST(EventDecoder, FindsNoEventsInAnEmptyArray) {
    EXPECT_TRUE(decoded("[]").empty());
    EXPECT_TRUE(decoded(" [ ] \n").empty());
}

TEST(EventDecoder, PassesOverUnknownKeys) {
    const auto events = decoded(
        R"([{"name": "a", "extra": {"name": 1, "properties": [{"timestamp": null}]}, "more": true,
            "timestamp": "2026-11-20T21:44:30Z", "number": 1.5, "list": ["name", []],
            "properties": {"x": "1"}}])");
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0], (AnalyticsEvent{u"a"_s, moment, {{u"x"_s, u"1"_s}}}));
}

TEST(EventDecoder, TakesTheLastOfEqualKeys) {
    const auto events = decoded(
        R"([{"name": "a", "name": "b", "timestamp": "2026-11-20T21:44:30Z",
            "properties": {"x": "1"}, "properties": {"y": "1", "y": "2"}}])");
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0], (AnalyticsEvent{u"b"_s, moment, {{u"y"_s, u"2"_s}}}));
}

struct Undecodable {
    const char* name;
    QByteArray bytes;
    QString reason;
};

std::ostream& operator<<(std::ostream& out, const Undecodable& test) {
    return out << test.name;
}

class EventDecoderUndecodable : public testing::TestWithParam<Undecodable> {};

TEST_P(EventDecoderUndecodable, IsDescribed) {
    QString error;
    EXPECT_FALSE(decodeEvents(
        GetParam().bytes, [](const AnalyticsEvent&) {}, &error));
    EXPECT_EQ(error, GetParam().reason);
}

const QByteArray good = R"({"name": "a", "timestamp": "2026-11-20T21:44:30Z", "properties": {}})";

INSTANTIATE_TEST_SUITE_P(
    Files, EventDecoderUndecodable,
    testing::Values(
        Undecodable{"Empty", "", u"Invalid JSON at byte 1"_s},
        Undecodable{"Truncated", '[' + good + ',', u"Invalid JSON at byte 71"_s},
        Undecodable{"Unclosed", '[' + good, u"Invalid JSON at byte 70"_s},
        Undecodable{"Twice", '[' + good + "][]", u"Invalid JSON at byte 71"_s},
        Undecodable{"AfterANul", "[]" + QByteArray(1, '\0') + '[' + good + ']',
                    u"Invalid JSON at byte 3"_s},
        Undecodable{"Binary", QByteArray("\x7f\0\0", 3), u"Invalid JSON at byte 1"_s},
        Undecodable{"InvalidUtf8", "[{\"name\": \"\xff\"}]", u"Invalid JSON at byte 12"_s},
        Undecodable{"LoneSurrogate", R"([{"name": "\ud800"}])", u"Invalid JSON at byte 18"_s},
        Undecodable{"Object", "{}", u"The JSON is not an array"_s},
        Undecodable{"Number", "5", u"The JSON is not an array"_s},
        Undecodable{"HugeNumber", "[1e999]", u"Invalid JSON at byte 6"_s},
        Undecodable{"ArrayOfNumbers", "[1]", u"Event 1 is not an object"_s},
        Undecodable{"ArrayOfArrays", '[' + good + ", []]", u"Event 2 is not an object"_s},
        Undecodable{"NoName", R"([{"timestamp": "2026-11-20T21:44:30Z", "properties": {}}])",
                    u"Missing value of event 1"_s},
        Undecodable{"NoTimestamp", R"([{"name": "a", "properties": {}}])",
                    u"Missing value of event 1"_s},
        Undecodable{"NoProperties", R"([{"name": "a", "timestamp": "2026-11-20T21:44:30Z"}])",
                    u"Missing value of event 1"_s},
        Undecodable{"NumericName", R"([{"name": 1}])", u"Invalid value for \"name\" of event 1"_s},
        Undecodable{"NullName", R"([{"name": null}])", u"Invalid value for \"name\" of event 1"_s},
        Undecodable{"ObjectAsName", R"([{"name": {}}])",
                    u"Invalid value for \"name\" of event 1"_s},
        Undecodable{"NumericTimestamp", '[' + good + R"(,{"timestamp": 796945470.5}])",
                    u"Invalid value for \"timestamp\" of event 2"_s},
        Undecodable{"DateOnly", R"([{"timestamp": "2026-11-20"}])",
                    u"Invalid value for \"timestamp\" of event 1"_s},
        Undecodable{"ListAsProperties", R"([{"properties": ["a", "b"]}])",
                    u"Invalid value for \"properties\" of event 1"_s},
        Undecodable{"TextAsProperties", R"([{"properties": "a"}])",
                    u"Invalid value for \"properties\" of event 1"_s},
        Undecodable{"NumericProperty", R"([{"properties": {"a": 1}}])",
                    u"Invalid value for \"properties\" of event 1"_s},
        Undecodable{"NestedProperty", R"([{"properties": {"a": {}}}])",
                    u"Invalid value for \"properties\" of event 1"_s},
        Undecodable{"DeeplyNested", "[{\"x\": " + QByteArray(2'000'000, '['),
                    u"The JSON is nested too deeply"_s}),
    byMember<&Undecodable::name>);

} // namespace
} // namespace tessaline
