#include "settings/TimeOfDay.h"

#include "support/CaseName.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

struct Written {
    QString text;
    int minutes;
};

class TimeOfDayText : public testing::TestWithParam<Written> {};

TEST_P(TimeOfDayText, IsReadInEveryFormAndWrittenInOne) {
    const auto time = timeOfDayFromText(GetParam().text);
    ASSERT_TRUE(time);
    EXPECT_EQ(time->minutes, GetParam().minutes);
    EXPECT_EQ(timeOfDayFromText(timeOfDayText(*time)), time);
    EXPECT_EQ(timeOfDayText(*time).size(), 5);
}

INSTANTIATE_TEST_SUITE_P(Times, TimeOfDayText,
                         testing::Values(Written{u"15:30"_s, 930}, Written{u"9:05"_s, 545},
                                         Written{u"09:05"_s, 545}, Written{u"0:00"_s, 0},
                                         Written{u"00:00"_s, 0}, Written{u"23:59"_s, 1439}),
                         byMember<&Written::text>);

class NoTimeOfDay : public testing::TestWithParam<const char*> {};

TEST_P(NoTimeOfDay, IsRead) {
    EXPECT_EQ(timeOfDayFromText(QString::fromUtf8(GetParam())), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Texts, NoTimeOfDay,
                         testing::Values("", "24:00", "12:60", "-1:00", "12", "12:", ":30", "9:5",
                                         "12:30:00", "12.30", "12:30 ", " 12:30", "noon", "3:30pm"),
                         byValue);

TEST(TimeOfDay, IsTextInAFile) {
    TimeOfDay time;
    EXPECT_TRUE(decode(JsonValue{u"7:45"_s}, time));
    EXPECT_EQ(time.minutes, 7 * 60 + 45);
    EXPECT_EQ(*encode(time).as<QString>(), u"07:45"_s);
    EXPECT_FALSE(decode(JsonValue{u"soon"_s}, time));
    EXPECT_FALSE(decode(JsonValue{7.45}, time));
    EXPECT_EQ(time.minutes, 7 * 60 + 45);
}

TEST(TimeOfDay, HasPassedFromItsMinuteOn) {
    const TimeOfDay time{930};
    EXPECT_FALSE(hasPassed(time, QTime(0, 0)));
    EXPECT_FALSE(hasPassed(time, QTime(15, 29, 59)));
    EXPECT_TRUE(hasPassed(time, QTime(15, 30)));
    EXPECT_TRUE(hasPassed(time, QTime(23, 59)));
}

} // namespace
} // namespace tessaline
