#include "platform/linux/RefreshSchedule.h"
#include "support/CaseName.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace tessaline {

namespace {

constexpr std::uint64_t second = 1'000'000'000;

struct RateCase {
    double claimed;
    double usable;
};

class UsableRefreshRate : public ::testing::TestWithParam<RateCase> {};

TEST_P(UsableRefreshRate, IsWithinReasonAndSixtyForNonsense) {
    EXPECT_EQ(usableRefreshRate(GetParam().claimed), GetParam().usable);
}

INSTANTIATE_TEST_SUITE_P(Claims, UsableRefreshRate,
                         ::testing::Values(RateCase{60.0, 60.0}, RateCase{59.94, 59.94},
                                           RateCase{24.0, 24.0}, RateCase{360.0, 360.0},
                                           RateCase{1.0, 24.0}, RateCase{1000.0, 360.0},
                                           RateCase{0.0, 60.0}, RateCase{-60.0, 60.0},
                                           RateCase{std::nan(""), 60.0},
                                           RateCase{std::numeric_limits<double>::infinity(), 60.0}),
                         byMember<&RateCase::claimed>);

TEST(RefreshSchedule, IsDueOnePeriodAfterItsStart) {
    const RefreshSchedule schedule(5 * second, 50.0);
    EXPECT_EQ(schedule.next(), 5 * second + 20'000'000);
}

TEST(RefreshSchedule, MovesOnByOnePeriodHoweverLateTheWake) {
    RefreshSchedule schedule(second, 50.0);
    EXPECT_EQ(schedule.advance(second + 20'000'000), second + 20'000'000);
    EXPECT_EQ(schedule.next(), second + 40'000'000);
    EXPECT_EQ(schedule.advance(second + 59'999'999), second + 40'000'000);
    EXPECT_EQ(schedule.next(), second + 60'000'000);
}

TEST(RefreshSchedule, SkipsTheRefreshesThatAStallHasMissed) {
    RefreshSchedule schedule(0, 50.0);
    EXPECT_EQ(schedule.advance(20'000'100), 20'000'000U);
    EXPECT_EQ(schedule.advance(10 * second + 1), 10 * second);
    EXPECT_EQ(schedule.next(), 10 * second + 20'000'000);
}

TEST(RefreshSchedule, MovesOnWhenTheClockReadsEarly) {
    RefreshSchedule schedule(second, 50.0);
    EXPECT_EQ(schedule.advance(second + 19'999'999), second + 20'000'000);
    EXPECT_EQ(schedule.advance(second - 1), second + 40'000'000);
}

TEST(RefreshSchedule, AddsUpNoRoundingErrorsInTenHours) {
    constexpr double rate = 59.94;
    constexpr std::uint64_t refreshes = 2'160'000;
    RefreshSchedule schedule(7, rate);
    std::uint64_t time = 0;
    for (std::uint64_t i = 0; i < refreshes; ++i) {
        const std::uint64_t due = schedule.next();
        ASSERT_GT(due, time);
        time = due;
        ASSERT_EQ(schedule.advance(due + 50'000), due);
    }
    EXPECT_NEAR(static_cast<double>(time - 7), static_cast<double>(refreshes) / rate * 1e9, 1.0);
}

class RefreshScheduleWake : public ::testing::TestWithParam<double> {};

TEST_P(RefreshScheduleWake, TakesEveryRefreshOnceWhenWokenOnTheDot) {
    RefreshSchedule schedule(123'456'789, GetParam());
    for (int i = 0; i < 100'000; ++i) {
        const std::uint64_t due = schedule.next();
        ASSERT_EQ(schedule.advance(due), due);
        ASSERT_GT(schedule.next(), due);
    }
}

INSTANTIATE_TEST_SUITE_P(Rates, RefreshScheduleWake,
                         ::testing::Values(24.0, 59.94, 60.0, 74.78, 143.88, 360.0), byValue);

} // namespace

} // namespace tessaline
