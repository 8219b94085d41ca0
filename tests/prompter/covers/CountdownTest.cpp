#include "prompter/covers/Countdown.h"

#include "support/FakeTimerMaker.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessaline {
namespace {

class CountdownTest : public testing::Test {
protected:
    FakeTimerMaker timers;
    std::vector<int> counts;
    Countdown countdown{timers, [this] { counts.push_back(countdown.secondsLeft()); }};
};

TEST_F(CountdownTest, TellsEveryWholeSecondOnce) {
    countdown.start(3);
    timers.advance(0.9);
    EXPECT_EQ(counts, std::vector({3}));
    timers.advance(0.2);
    EXPECT_EQ(counts, std::vector({3, 2}));
    timers.advance(60);
    EXPECT_EQ(counts, std::vector({3, 2, 1, 0}));
    EXPECT_TRUE(timers.liveIntervals().empty());
}

TEST_F(CountdownTest, BeginsAnew) {
    countdown.start(3);
    timers.advance(2.5);
    countdown.start(5);
    timers.advance(0.9);
    EXPECT_EQ(countdown.secondsLeft(), 5);
    timers.advance(0.2);
    EXPECT_EQ(countdown.secondsLeft(), 4);
}

TEST_F(CountdownTest, IsOverAtOnceWithoutSeconds) {
    countdown.start(0);
    EXPECT_EQ(counts, std::vector({0}));
    EXPECT_TRUE(timers.liveIntervals().empty());
}

TEST_F(CountdownTest, TellsNothingOnceItIsStopped) {
    countdown.start(3);
    countdown.stop();
    EXPECT_EQ(countdown.secondsLeft(), 0);
    timers.advance(60);
    EXPECT_EQ(counts, std::vector({3}));
}

} // namespace
} // namespace tessaline
