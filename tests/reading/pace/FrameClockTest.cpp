#include "reading/pace/FrameClock.h"

#include "support/FakeDisplayLinkMaker.h"
#include "support/FakeMainQueue.h"
#include "support/FakeTimerMaker.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace tessaline {
namespace {

class FrameClockTest : public testing::Test {
protected:
    FrameClock& make() {
        clock.emplace(links, timers, queue, Clocks{.steady = [this] { return now; }},
                      [this](double seconds) { frames.push_back(seconds); });
        return *clock;
    }

    FakeDisplayLinkMaker links;
    FakeTimerMaker timers;
    FakeMainQueue queue;
    Clocks::TimePoint now;
    std::vector<double> frames;
    std::optional<FrameClock> clock;
};

TEST_F(FrameClockTest, TellsTheTimeSinceTheFrameBefore) {
    make().start();
    for (const std::uint64_t time : {100, 103, 104}) {
        links.refresh(time);
        queue.runAll();
    }
    EXPECT_EQ(frames, (std::vector{1.0 / 60, 3.0 / 60, 1.0 / 60}));
}

TEST_F(FrameClockTest, MakesOneOfTheFramesThatCameWhileTheMainThreadWasBusy) {
    make().start();
    links.refresh(100);
    queue.runAll();
    for (const std::uint64_t time : {101, 102, 103})
        links.refresh(time);
    EXPECT_EQ(queue.pending(), 1u);
    queue.runAll();
    EXPECT_EQ(frames, (std::vector{1.0 / 60, 3.0 / 60}));
}

TEST_F(FrameClockTest, TellsNothingMoreOnceItIsStopped) {
    make().start();
    links.refresh(100);
    clock->stop();
    queue.runAll();
    links.refresh(101);
    queue.runAll();
    EXPECT_TRUE(frames.empty());
    EXPECT_FALSE(clock->running());
}

TEST_F(FrameClockTest, DoesNotCountTheTimeInWhichItWasStopped) {
    make().start();
    links.refresh(100);
    queue.runAll();
    clock->stop();
    clock->start();
    links.refresh(1000);
    queue.runAll();
    EXPECT_EQ(frames, (std::vector{1.0 / 60, 1.0 / 60}));
}

TEST_F(FrameClockTest, UsesATimerWhereTheLinkDoesNotStart) {
    links.canStart = false;
    make().start();
    EXPECT_EQ(timers.liveIntervals(), std::vector{1.0 / 60});
    timers.advance(1.5 / 60);
    now += std::chrono::milliseconds(25);
    timers.advance(1.0 / 60);
    EXPECT_EQ(frames, (std::vector{1.0 / 60, 0.025}));
    clock->stop();
    EXPECT_TRUE(timers.liveIntervals().empty());
}

TEST_F(FrameClockTest, GoesWithoutWordWhileAFrameIsUnderWay) {
    make().start();
    links.refresh(100);
    clock.reset();
    queue.runAll();
    EXPECT_TRUE(frames.empty());
}

} // namespace
} // namespace tessaline
