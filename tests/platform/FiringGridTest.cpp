#include "platform/FiringGrid.h"

#include <gmock/gmock.h>

#include <cmath>

using namespace std::chrono_literals;

namespace tessaline {
namespace {

using Interval = FiringGrid::Interval;

TEST(FiringGrid, WaitsOneIntervalAtFirst) {
    EXPECT_EQ(FiringGrid(1s).waitForNext(0s), 1000ms);
}

TEST(FiringGrid, AddsUpNoRoundedMilliseconds) {
    constexpr Interval interval{1.0 / 60.0};
    FiringGrid grid(interval);
    Interval elapsed{0.0};
    for (int firing = 1; firing <= 36000; ++firing) {
        elapsed += grid.waitForNext(elapsed);
        ASSERT_LE(std::abs((elapsed - firing * interval).count()), 0.00051) << firing;
    }
}

TEST(FiringGrid, LetsALateFiringLeaveTheNextOneInPlace) {
    FiringGrid grid(100ms);
    grid.waitForNext(0ms);
    EXPECT_EQ(grid.waitForNext(130ms), 70ms);
}

TEST(FiringGrid, LeavesOutMissedFirings) {
    FiringGrid grid(100ms);
    grid.waitForNext(0ms);
    EXPECT_EQ(grid.waitForNext(530ms), 70ms);
}

TEST(FiringGrid, DoesNotRepeatAFiringThatCameEarly) {
    FiringGrid grid(100ms);
    grid.waitForNext(0ms);
    EXPECT_EQ(grid.waitForNext(96ms), 104ms);
}

} // namespace
} // namespace tessaline
