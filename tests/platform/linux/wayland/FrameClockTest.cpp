#include "platform/linux/wayland/FrameClock.h"

#include <gmock/gmock.h>

#include <limits>

namespace tessaline {

namespace {

constexpr std::uint64_t millisecond = 1'000'000;
constexpr std::uint64_t start = 5'000 * millisecond;

TEST(FrameClock, DatesFramesByTheCompositorHoweverLateTheyAreHeardOf) {
    FrameClock clock;
    EXPECT_EQ(clock.timeOfFrame(100, start), start);
    EXPECT_EQ(clock.timeOfFrame(117, start + 29 * millisecond), start + 17 * millisecond);
    EXPECT_EQ(clock.timeOfFrame(133, start + 34 * millisecond), start + 33 * millisecond);
}

TEST(FrameClock, GoesOnWhereTheCompositorsClockRunsOver) {
    FrameClock clock;
    clock.timeOfFrame(std::numeric_limits<std::uint32_t>::max() - 6, start);
    EXPECT_EQ(clock.timeOfFrame(10, start + 17 * millisecond), start + 17 * millisecond);
}

TEST(FrameClock, TakesThePresentTimeWhereTheCompositorsClockJumps) {
    FrameClock clock;
    clock.timeOfFrame(100, start);
    EXPECT_EQ(clock.timeOfFrame(90'000, start + 17 * millisecond), start + 17 * millisecond);
    EXPECT_EQ(clock.timeOfFrame(90'017, start + 40 * millisecond), start + 34 * millisecond);
    EXPECT_EQ(clock.timeOfFrame(3, start + 60 * millisecond), start + 60 * millisecond);
}

TEST(FrameClock, NeverGoesBack) {
    FrameClock clock;
    clock.timeOfFrame(100, start);
    EXPECT_EQ(clock.timeWithoutFrame(start + 50 * millisecond), start + 50 * millisecond);
    EXPECT_EQ(clock.timeOfFrame(117, start + 51 * millisecond), start + 50 * millisecond);
    EXPECT_EQ(clock.timeWithoutFrame(start + 49 * millisecond), start + 50 * millisecond);
}

} // namespace

} // namespace tessaline
