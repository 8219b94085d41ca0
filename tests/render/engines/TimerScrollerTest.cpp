#include "render/engines/TimerScroller.h"

#include "render/engines/DisplayLinkScroller.h"
#include "support/FakeDisplayLinkMaker.h"
#include "support/FakeMainQueue.h"
#include "support/FakeTimerMaker.h"
#include "support/RecordingScrollDelegate.h"

#include <gmock/gmock.h>

#include <cmath>
#include <memory>
#include <string>

namespace tessaline {

namespace {

using ::testing::DoubleEq;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class TimerScrollerTest : public ::testing::Test {
protected:
    TimerScrollerTest() { engine->setDelegate(delegate); }

    // Half a frame off the beat of the timer, so that no firing hangs on a rounding error.
    void startAt(double pixelsPerSecond) {
        engine->updatePixelsPerSecond(pixelsPerSecond);
        engine->start();
        timers.advance(0.5 / 60.0);
    }

    void fire(int firings) {
        timers.advance(firings / 60.0);
        queue.runAll();
    }

    FakeTimerMaker timers;
    FakeMainQueue queue;
    FakeDisplayLinkMaker links;
    std::shared_ptr<RecordingScrollDelegate> delegate = std::make_shared<RecordingScrollDelegate>();
    std::unique_ptr<TimerScroller> engine = std::make_unique<TimerScroller>(timers, queue, links);
};

TEST_F(TimerScrollerTest, IsIdleWhenConstructed) {
    EXPECT_FALSE(engine->running());
    EXPECT_THAT(timers.liveIntervals(), IsEmpty());
    EXPECT_EQ(links.calls, 0);
}

TEST_F(TimerScrollerTest, RunsASixtyHertzTimer) {
    engine->start();
    EXPECT_TRUE(engine->running());
    EXPECT_THAT(timers.liveIntervals(), ElementsAre(0.016666666666666666));
}

TEST_F(TimerScrollerTest, StartsOneTimerOnly) {
    engine->start();
    engine->start();
    EXPECT_THAT(timers.liveIntervals(), SizeIs(1));
}

TEST_F(TimerScrollerTest, StopsItsTimer) {
    startAt(20.0);
    engine->stop();
    EXPECT_FALSE(engine->running());
    EXPECT_THAT(timers.liveIntervals(), IsEmpty());
    engine->stop();
    EXPECT_FALSE(engine->running());
    fire(10);
    EXPECT_THAT(delegate->deltas, IsEmpty());
}

TEST_F(TimerScrollerTest, DeliversAThirdOfAPointPerFiringUnlessToldOtherwise) {
    engine->start();
    timers.advance(0.5 / 60.0);
    fire(6);
    EXPECT_THAT(delegate->deltas, SizeIs(6));
    EXPECT_THAT(delegate->deltas, Each(DoubleEq(-20.0 / 60.0)));
}

TEST_F(TimerScrollerTest, GathersATenthOfAPointBeforeItDelivers) {
    startAt(4.8);
    fire(5);
    EXPECT_THAT(delegate->deltas, ElementsAre(DoubleEq(-0.16), DoubleEq(-0.16)));
}

TEST_F(TimerScrollerTest, DeliversExactlyATenthOfAPoint) {
    startAt(6.0);
    fire(2);
    EXPECT_THAT(delegate->deltas, ElementsAre(DoubleEq(-0.1), DoubleEq(-0.1)));
}

TEST_F(TimerScrollerTest, DoesNotJumpAfterAStretchAtSpeedZero) {
    startAt(0.0);
    fire(600);
    EXPECT_THAT(delegate->deltas, IsEmpty());
    EXPECT_TRUE(engine->running());
    engine->updatePixelsPerSecond(-20.0);
    fire(10);
    EXPECT_THAT(delegate->deltas, IsEmpty());
    engine->updatePixelsPerSecond(19.2);
    fire(1);
    EXPECT_THAT(delegate->deltas, ElementsAre(DoubleEq(-0.32)));
}

TEST_F(TimerScrollerTest, DeliversNothingAtASpeedThatIsNotANumber) {
    startAt(std::nan(""));
    fire(10);
    EXPECT_THAT(delegate->deltas, IsEmpty());
    engine->updatePixelsPerSecond(19.2);
    fire(1);
    EXPECT_THAT(delegate->deltas, ElementsAre(DoubleEq(-0.32)));
}

TEST_F(TimerScrollerTest, KeepsTheRemainderOverAStop) {
    startAt(4.8);
    fire(1);
    engine->stop();
    timers.advance(100.0);
    startAt(4.8);
    fire(1);
    EXPECT_THAT(delegate->deltas, ElementsAre(DoubleEq(-0.16)));
}

TEST_F(TimerScrollerTest, DeliversThroughTheMainQueueOnly) {
    startAt(20.0);
    timers.advance(2.0 / 60.0);
    EXPECT_THAT(delegate->deltas, IsEmpty());
    EXPECT_EQ(queue.pending(), 2);
}

TEST_F(TimerScrollerTest, DeliversWithADisplayLinkEngineMadeForTheOneCall) {
    startAt(4.8);
    int seen = 0;
    delegate->onScroll = [&](DisplayLinkScroller& scroller) {
        ++seen;
        EXPECT_TRUE(scroller.isAvailable());
        EXPECT_FALSE(scroller.running());
        EXPECT_THAT(links.living, SizeIs(1));
        EXPECT_EQ(links.calls, seen);
    };
    fire(8);
    EXPECT_EQ(seen, 4);
    EXPECT_EQ(links.calls, 4);
    EXPECT_THAT(links.living, IsEmpty());
}

TEST_F(TimerScrollerTest, RepeatsWithEveryDeliveryThatThereIsNoLink) {
    links.available = false;
    bool available = true;
    delegate->onScroll = [&](DisplayLinkScroller& scroller) { available = scroller.isAvailable(); };
    startAt(20.0);
    ::testing::internal::CaptureStdout();
    fire(2);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(),
              "Failed to create CVDisplayLink, falling back to Timer\n"
              "Failed to create CVDisplayLink, falling back to Timer\n");
    EXPECT_FALSE(available);
    EXPECT_THAT(delegate->deltas, SizeIs(2));
}

TEST_F(TimerScrollerTest, DeliversNothingOnceItIsGone) {
    startAt(20.0);
    timers.advance(1.0 / 60.0);
    engine.reset();
    EXPECT_THAT(timers.liveIntervals(), IsEmpty());
    queue.runAll();
    EXPECT_THAT(delegate->deltas, IsEmpty());
    EXPECT_EQ(links.calls, 0);
}

TEST_F(TimerScrollerTest, MakesNoEngineWhenItsDelegateIsGone) {
    startAt(20.0);
    timers.advance(1.0 / 60.0);
    delegate.reset();
    queue.runAll();
    EXPECT_EQ(links.calls, 0);
}

TEST_F(TimerScrollerTest, MayBeDestroyedByItsDelegate) {
    startAt(20.0);
    delegate->onScroll = [this](DisplayLinkScroller&) { engine.reset(); };
    fire(3);
    EXPECT_THAT(delegate->deltas, SizeIs(1));
}

} // namespace

} // namespace tessaline
