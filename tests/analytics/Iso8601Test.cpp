#include "analytics/Iso8601.h"

#include "support/CaseName.h"
#include "support/PrintQt.h"

#include <QTimeZone>

#include <gtest/gtest.h>

#include <ostream>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

QDateTime utc(int year, int month, int day, int hour, int minute, int second, int msec = 0) {
    return {QDate(year, month, day), QTime(hour, minute, second, msec), QTimeZone::utc()};
}

TEST(Iso8601, WritesUtcInWholeSeconds) {
    EXPECT_EQ(toIso8601(utc(2026, 11, 20, 21, 44, 30, 999)), "2026-11-20T21:44:30Z");
}

TEST(Iso8601, WritesOtherZonesAsUtc) {
    const QDateTime moment(QDate(2026, 1, 1), QTime(0, 30), Qt::OffsetFromUTC, 3600);
    EXPECT_EQ(toIso8601(moment), "2025-12-31T23:30:00Z");
}

TEST(Iso8601, WritesAReadableTextWhateverTheClockSays) {
    EXPECT_EQ(toIso8601(utc(12026, 1, 1, 0, 0, 0)), "9999-12-31T23:59:59Z");
    EXPECT_EQ(toIso8601(utc(-5, 1, 1, 0, 0, 0)), "0001-01-01T00:00:00Z");
    EXPECT_EQ(fromIso8601("0001-01-01T00:00:00Z"), utc(1, 1, 1, 0, 0, 0));
    EXPECT_EQ(fromIso8601("9999-12-31T23:59:59Z"), utc(9999, 12, 31, 23, 59, 59));
}

struct Readable {
    const char* name;
    const char* text;
    QDateTime moment;
};

class Iso8601Readable : public testing::TestWithParam<Readable> {};

TEST_P(Iso8601Readable, IsUnderstood) {
    EXPECT_EQ(fromIso8601(GetParam().text), GetParam().moment);
}

const QDateTime wholeSecond = utc(2026, 11, 20, 21, 44, 30);

INSTANTIATE_TEST_SUITE_P(
    Texts, Iso8601Readable,
    testing::Values(
        Readable{"Utc", "2026-11-20T21:44:30Z", wholeSecond},
        Readable{"Tenths", "2026-11-20T21:44:30.5Z", wholeSecond.addMSecs(500)},
        Readable{"Milliseconds", "2026-11-20T21:44:30.123Z", wholeSecond.addMSecs(123)},
        Readable{"Nanoseconds", "2026-11-20T21:44:30.999999999Z", wholeSecond.addMSecs(999)},
        Readable{"Comma", "2026-11-20T21:44:30,25Z", wholeSecond.addMSecs(250)},
        Readable{"Ahead", "2026-11-20T22:44:30+01:00", wholeSecond},
        Readable{"Behind", "2026-11-20T16:14:30-05:30", wholeSecond},
        Readable{"WithoutColon", "2026-11-20T22:44:30+0100", wholeSecond},
        Readable{"HoursOnly", "2026-11-20T22:44:30+01", wholeSecond},
        Readable{"FractionAndOffset", "2026-11-21T06:44:30.5+09:00", wholeSecond.addMSecs(500)},
        Readable{"NoOffset", "2026-11-20T21:44:30-00:00", wholeSecond},
        Readable{"LeapDay", "2024-02-29T00:00:00Z", utc(2024, 2, 29, 0, 0, 0)}),
    byMember<&Readable::name>);

class Iso8601Unreadable : public testing::TestWithParam<const char*> {};

TEST_P(Iso8601Unreadable, IsRefused) {
    EXPECT_EQ(fromIso8601(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Texts, Iso8601Unreadable,
                         testing::Values("", "2026-11-20", "2026-11-20T21:44:30",
                                         "2026-11-20 21:44:30Z", "2026-11-20T21:44Z",
                                         "2026-11-20T21:44:30.Z", "2026-11-20T21:44:30.5",
                                         "2026-02-29T21:44:30Z", "2026-11-20T25:44:30Z",
                                         "2026-11-20T21:44:30z", "2026-11-20T21:44:30+1:00",
                                         "2026-11-20T21:44:30+24:00", "2026-11-20T21:44:30+01:60",
                                         "2026-11-20T21:44:30Zx", "2026-11-20T21:44:30+aa:bb",
                                         "796945470.5", "\u0662026-11-20T21:44:30Z"),
                         byValue);

} // namespace
} // namespace tessaline
