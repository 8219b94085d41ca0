#include "platform/linux/ClockDisplayLinkMaker.h"
#include "render/engines/DisplayLinkScroller.h"
#include "support/FakeMainQueue.h"
#include "support/RecordingScrollDelegate.h"
#include "support/WaitUntil.h"

#include <gmock/gmock.h>

#include <chrono>
#include <memory>
#include <random>
#include <thread>

namespace tessaline {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr double pixelsPerSecond = 1000.0;
// What an engine counts for the first frame after a start.
constexpr Seconds firstFrame{1.0 / 60.0};

// The engine on its real link, with the test in the part of the main thread.
class ClockDrivenScrollerTest : public ::testing::Test {
protected:
    ClockDrivenScrollerTest() {
        engine->setDelegate(delegate);
        maker.setRefreshRate(360.0);
    }

    void runMainThreadFor(Seconds time) {
        const auto end = Clock::now() + time;
        while (Clock::now() < end) {
            queue.runAll();
            std::this_thread::sleep_for(200us);
        }
    }

    FakeMainQueue queue;
    ClockDisplayLinkMaker maker;
    std::shared_ptr<RecordingScrollDelegate> delegate = std::make_shared<RecordingScrollDelegate>();
    std::unique_ptr<DisplayLinkScroller> engine =
        std::make_unique<DisplayLinkScroller>(maker, queue);
};

TEST_F(ClockDrivenScrollerTest, MovesWithTheWallClock) {
    engine->updatePixelsPerSecond(pixelsPerSecond);
    // As often as it takes for a run whose last frames a busy machine did not hold up.
    EXPECT_TRUE(waitUntil([&] {
        delegate->deltas.clear();
        const auto start = Clock::now();
        engine->start();
        runMainThreadFor(500ms);
        engine->stop();
        const Seconds elapsed = Clock::now() - start;
        queue.runAll();
        EXPECT_LE(delegate->position(), pixelsPerSecond * (elapsed + firstFrame).count());
        return delegate->position() >= 0.95 * pixelsPerSecond * elapsed.count();
    }));
}

TEST_F(ClockDrivenScrollerTest, SurvivesStartsStopsAndSpeedChangesWhileItTicks) {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> pause(0.0, 0.008);
    std::uniform_real_distribution<double> speed(0.0, pixelsPerSecond);
    Seconds allowed{};
    const auto hammer = [&] {
        engine->updatePixelsPerSecond(speed(random));
        const auto start = Clock::now();
        engine->start();
        runMainThreadFor(Seconds(pause(random)));
        engine->updatePixelsPerSecond(speed(random));
        engine->stop();
        allowed += Clock::now() - start + firstFrame;
        const std::size_t posted = queue.pending();
        std::this_thread::sleep_for(100us);
        EXPECT_EQ(queue.pending(), posted) << "a stopped engine ticked";
    };
    const auto end = Clock::now() + 1s;
    EXPECT_TRUE(waitUntil([&] {
        hammer();
        return Clock::now() >= end && delegate->deltas.size() > 20;
    }));
    queue.runAll();
    EXPECT_LE(delegate->position(), pixelsPerSecond * allowed.count());
}

TEST_F(ClockDrivenScrollerTest, MayBeStoppedAndStartedByItsDelegate) {
    engine->updatePixelsPerSecond(pixelsPerSecond);
    delegate->onScroll = [](DisplayLinkScroller& scroller) {
        scroller.stop();
        scroller.start();
    };
    engine->start();
    EXPECT_TRUE(waitUntil([&] {
        queue.runAll();
        return delegate->deltas.size() > 20;
    }));
    EXPECT_TRUE(engine->running());
}

TEST_F(ClockDrivenScrollerTest, DeliversNothingOnceItIsDestroyedWhileTicking) {
    int engines = 0;
    EXPECT_TRUE(waitUntil([&] {
        engine = std::make_unique<DisplayLinkScroller>(maker, queue);
        engine->setDelegate(delegate);
        engine->updatePixelsPerSecond(pixelsPerSecond);
        engine->start();
        std::this_thread::sleep_for(std::chrono::microseconds(150 * (engines % 50)));
        engine.reset();
        return ++engines >= 50 && queue.pending() > 0;
    }));
    queue.runAll();
    EXPECT_TRUE(delegate->deltas.empty());
}

TEST_F(ClockDrivenScrollerTest, NeverRunsAheadWhileTheScreenChanges) {
    engine->updatePixelsPerSecond(pixelsPerSecond);
    const auto start = Clock::now();
    engine->start();
    for (const double hertz : {24.0, 360.0, 0.0, 144.0, 60.0, 240.0}) {
        maker.setRefreshRate(hertz);
        const std::size_t before = delegate->deltas.size();
        EXPECT_TRUE(waitUntil([&] {
            queue.runAll();
            return delegate->deltas.size() >= before + 3;
        }));
    }
    engine->stop();
    const Seconds elapsed = Clock::now() - start;
    queue.runAll();
    EXPECT_LE(delegate->position(), pixelsPerSecond * (elapsed + firstFrame).count());
}

} // namespace

} // namespace tessaline
