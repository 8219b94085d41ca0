#include "render/engines/DisplayLinkScroller.h"

#include "support/CaseName.h"
#include "support/FakeDisplayLinkMaker.h"
#include "support/FakeMainQueue.h"
#include "support/RecordingScrollDelegate.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <memory>
#include <random>
#include <string>

namespace tessaline {

namespace {

using ::testing::DoubleEq;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pointwise;
using ::testing::SizeIs;

class DisplayLinkScrollerTest : public ::testing::Test {
protected:
    void makeEngine() {
        engine = std::make_unique<DisplayLinkScroller>(links, queue);
        engine->setDelegate(delegate);
    }

    void startAt(double pixelsPerSecond) {
        makeEngine();
        engine->updatePixelsPerSecond(pixelsPerSecond);
        engine->start();
    }

    void refresh(int frames) {
        for (int i = 0; i < frames; ++i)
            links.refresh(++hostTime);
        queue.runAll();
    }

    FakeDisplayLinkMaker links;
    FakeMainQueue queue;
    std::shared_ptr<RecordingScrollDelegate> delegate = std::make_shared<RecordingScrollDelegate>();
    std::unique_ptr<DisplayLinkScroller> engine;
    std::uint64_t hostTime = 1'000;
};

TEST_F(DisplayLinkScrollerTest, MakesOneStoppedLinkWhenConstructed) {
    ::testing::internal::CaptureStdout();
    makeEngine();
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
    ASSERT_THAT(links.living, SizeIs(1));
    EXPECT_FALSE(links.living.front()->isStarted());
    EXPECT_TRUE(engine->isAvailable());
    EXPECT_FALSE(engine->running());
}

TEST_F(DisplayLinkScrollerTest, SaysOnStandardOutputThatThereIsNoLink) {
    links.available = false;
    ::testing::internal::CaptureStdout();
    makeEngine();
    EXPECT_EQ(::testing::internal::GetCapturedStdout(),
              "Failed to create CVDisplayLink, falling back to Timer\n");
    EXPECT_FALSE(engine->isAvailable());
}

TEST_F(DisplayLinkScrollerTest, WithoutALinkNeitherStartsNorStops) {
    links.available = false;
    makeEngine();
    engine->start();
    EXPECT_FALSE(engine->running());
    engine->stop();
    EXPECT_FALSE(engine->running());
    EXPECT_EQ(links.calls, 1);
}

TEST_F(DisplayLinkScrollerTest, GivesALinkUpThatDoesNotStart) {
    links.canStart = false;
    makeEngine();
    ::testing::internal::CaptureStdout();
    engine->start();
    EXPECT_EQ(::testing::internal::GetCapturedStdout(),
              "Failed to create CVDisplayLink, falling back to Timer\n");
    EXPECT_FALSE(engine->running());
    EXPECT_FALSE(engine->isAvailable());
    EXPECT_THAT(links.living, IsEmpty());
}

TEST_F(DisplayLinkScrollerTest, StartsAndStopsItsLink) {
    makeEngine();
    engine->start();
    EXPECT_TRUE(engine->running());
    EXPECT_TRUE(links.living.front()->isStarted());
    engine->stop();
    EXPECT_FALSE(engine->running());
    EXPECT_FALSE(links.living.front()->isStarted());
}

TEST_F(DisplayLinkScrollerTest, StartingARunningEngineLosesNoElapsedTime) {
    startAt(20.0);
    refresh(1);
    engine->start();
    hostTime += 59;
    refresh(1);
    EXPECT_THAT(delegate->deltas, ElementsAre(DoubleEq(-20.0 / 60.0), DoubleEq(-20.0)));
}

TEST_F(DisplayLinkScrollerTest, StoppingAnIdleEngineDoesNothing) {
    makeEngine();
    engine->stop();
    EXPECT_FALSE(engine->running());
    engine->start();
    refresh(1);
    EXPECT_THAT(delegate->deltas, SizeIs(1));
}

TEST_F(DisplayLinkScrollerTest, ReleasesItsLinkWhenDestroyedWhileRunning) {
    startAt(20.0);
    refresh(1);
    engine.reset();
    EXPECT_THAT(links.living, IsEmpty());
}

TEST_F(DisplayLinkScrollerTest, MovesTwentyPointsPerSecondUnlessToldOtherwise) {
    makeEngine();
    engine->start();
    refresh(60);
    EXPECT_THAT(delegate->deltas, SizeIs(60));
    EXPECT_NEAR(delegate->position(), 20.0, 1e-9);
}

struct SpeedCase {
    std::string name;
    double pixelsPerSecond;
    int frames;
    std::vector<double> deltas;
};

class DisplayLinkScrollerSpeed : public DisplayLinkScrollerTest,
                                 public ::testing::WithParamInterface<SpeedCase> {};

TEST_P(DisplayLinkScrollerSpeed, DeliversOnceATenthOfAPointHasGathered) {
    startAt(GetParam().pixelsPerSecond);
    refresh(GetParam().frames);
    EXPECT_THAT(delegate->deltas, Pointwise(::testing::DoubleEq(), GetParam().deltas));
}

INSTANTIATE_TEST_SUITE_P(
    AtSixtyHertz, DisplayLinkScrollerSpeed,
    ::testing::Values(SpeedCase{"FastAtFullSpeed", 19.2, 4, {-0.32, -0.32, -0.32, -0.32}},
                      SpeedCase{"SlowEverySecondFrame", 4.8, 5, {-0.16, -0.16}},
                      SpeedCase{"SlowerEveryThirdFrame", 2.4, 7, {-0.12, -0.12}},
                      SpeedCase{"ExactlyATenth", 6.0, 3, {-0.1, -0.1, -0.1}},
                      SpeedCase{"JustBelowATenth", 5.9, 1, {}},
                      SpeedCase{"TwoThousandPoints", 120'000.0, 2, {-2000.0, -2000.0}},
                      SpeedCase{"Nothing", 0.0, 100, {}}, SpeedCase{"Backwards", -4.8, 100, {}},
                      SpeedCase{"NotANumber", std::nan(""), 100, {}}),
    byMember<&SpeedCase::name>);

TEST_F(DisplayLinkScrollerTest, CountsTheWholeStretchAtSpeedZeroOnceTheSpeedRises) {
    startAt(19.2);
    refresh(1);
    engine->updatePixelsPerSecond(0.0);
    refresh(599);
    ASSERT_THAT(delegate->deltas, ElementsAre(DoubleEq(-0.32)));
    engine->updatePixelsPerSecond(19.2);
    refresh(1);
    EXPECT_THAT(delegate->deltas, ElementsAre(DoubleEq(-0.32), DoubleEq(-192.0)));
    refresh(1);
    EXPECT_THAT(delegate->deltas, SizeIs(3));
    EXPECT_DOUBLE_EQ(delegate->deltas.back(), -0.32);
}

TEST_F(DisplayLinkScrollerTest, CountsNoPauseWhenTheSpeedWasZeroFromTheStart) {
    startAt(0.0);
    refresh(600);
    engine->updatePixelsPerSecond(19.2);
    refresh(1);
    EXPECT_THAT(delegate->deltas, ElementsAre(DoubleEq(-0.32)));
}

TEST_F(DisplayLinkScrollerTest, KeepsTheRemainderOverAStopButNotTheTime) {
    startAt(4.8);
    refresh(1);
    ASSERT_THAT(delegate->deltas, IsEmpty());
    engine->stop();
    hostTime += 1'000'000;
    engine->start();
    refresh(1);
    EXPECT_THAT(delegate->deltas, ElementsAre(DoubleEq(-0.16)));
}

TEST_F(DisplayLinkScrollerTest, KeepsTheRemainderOverASpeedChange) {
    startAt(4.8);
    refresh(1);
    engine->updatePixelsPerSecond(9.6);
    refresh(1);
    EXPECT_THAT(delegate->deltas, ElementsAre(DoubleEq(-0.24)));
}

TEST_F(DisplayLinkScrollerTest, LimitsNoElapsedTime) {
    startAt(9.6);
    refresh(1);
    hostTime += 60 * 3600 - 1;
    refresh(1);
    EXPECT_THAT(delegate->deltas, ElementsAre(DoubleEq(-0.16), DoubleEq(-34'560.0)));
}

TEST_F(DisplayLinkScrollerTest, MeasuresTimeWithTheClockOfItsLink) {
    links.clockFrequency = 24e6;
    startAt(10.0);
    hostTime = std::numeric_limits<std::uint64_t>::max() - 12'000'002;
    refresh(1);
    hostTime += 11'999'999;
    refresh(1);
    EXPECT_THAT(delegate->deltas, ElementsAre(DoubleEq(-10.0 / 60.0), DoubleEq(-5.0)));
}

TEST_F(DisplayLinkScrollerTest, TakesTheSameHostTimeTwiceForNoTime) {
    startAt(19.2);
    links.refresh(5);
    links.refresh(5);
    queue.runAll();
    EXPECT_THAT(delegate->deltas, ElementsAre(DoubleEq(-0.32)));
}

TEST_F(DisplayLinkScrollerTest, EndsTheProgramWhenHostTimeGoesBack) {
    startAt(19.2);
    links.refresh(100);
    EXPECT_DEATH(links.refresh(99), "host time went back from 100 to 99");
}

TEST_F(DisplayLinkScrollerTest, AcceptsASmallerHostTimeAfterAStop) {
    startAt(19.2);
    links.refresh(100);
    engine->stop();
    engine->start();
    links.refresh(99);
    queue.runAll();
    EXPECT_THAT(delegate->deltas, ElementsAre(DoubleEq(-0.32), DoubleEq(-0.32)));
}

TEST_F(DisplayLinkScrollerTest, DeliversThroughTheMainQueueOnly) {
    startAt(19.2);
    links.refresh(1);
    links.refresh(2);
    EXPECT_THAT(delegate->deltas, IsEmpty());
    EXPECT_EQ(queue.pending(), 2);
    queue.runAll();
    EXPECT_THAT(delegate->deltas, SizeIs(2));
}

TEST_F(DisplayLinkScrollerTest, PostsNothingForMovementsTooSmall) {
    startAt(4.8);
    links.refresh(1);
    EXPECT_EQ(queue.pending(), 0);
}

TEST_F(DisplayLinkScrollerTest, DeliversWhatWasPostedBeforeAStop) {
    startAt(19.2);
    links.refresh(1);
    engine->stop();
    queue.runAll();
    EXPECT_THAT(delegate->deltas, SizeIs(1));
}

TEST_F(DisplayLinkScrollerTest, ComesWithItsDeliveries) {
    startAt(19.2);
    const DisplayLinkScroller* producer = nullptr;
    delegate->onScroll = [&](DisplayLinkScroller& scroller) { producer = &scroller; };
    refresh(1);
    EXPECT_EQ(producer, engine.get());
}

TEST_F(DisplayLinkScrollerTest, DeliversNothingOnceItIsGone) {
    startAt(19.2);
    links.refresh(1);
    engine.reset();
    queue.runAll();
    EXPECT_THAT(delegate->deltas, IsEmpty());
}

TEST_F(DisplayLinkScrollerTest, HoldsItsDelegateWeakly) {
    startAt(19.2);
    bool called = false;
    delegate->onScroll = [&](DisplayLinkScroller&) { called = true; };
    const std::weak_ptr<RecordingScrollDelegate> observer = delegate;
    links.refresh(1);
    delegate.reset();
    EXPECT_TRUE(observer.expired());
    queue.runAll();
    EXPECT_FALSE(called);
}

TEST_F(DisplayLinkScrollerTest, MayBeDestroyedByItsDelegate) {
    startAt(19.2);
    delegate->onScroll = [this](DisplayLinkScroller&) { engine.reset(); };
    refresh(3);
    EXPECT_THAT(delegate->deltas, SizeIs(1));
    EXPECT_THAT(links.living, IsEmpty());
}

TEST_F(DisplayLinkScrollerTest, MayBeStoppedAndStartedByItsDelegate) {
    startAt(19.2);
    delegate->onScroll = [](DisplayLinkScroller& scroller) {
        scroller.stop();
        scroller.start();
    };
    refresh(1);
    hostTime += 600;
    refresh(1);
    EXPECT_THAT(delegate->deltas, ElementsAre(DoubleEq(-0.32), DoubleEq(-0.32)));
}

class DisplayLinkScrollerDrift : public DisplayLinkScrollerTest,
                                 public ::testing::WithParamInterface<double> {};

TEST_P(DisplayLinkScrollerDrift, StaysBelowAThousandthInTenMinutesOfUnevenFrames) {
    constexpr double pixelsPerSecond = 9.6;
    constexpr double seconds = 600.0;
    const double period = 1.0 / GetParam();
    links.clockFrequency = 1e9;
    startAt(pixelsPerSecond);

    std::mt19937 random(7);
    std::uniform_real_distribution<double> jitter(-0.4 * period, 0.4 * period);
    std::bernoulli_distribution isDropped(0.01);
    const int frames = static_cast<int>(seconds / period);
    for (int frame = 1; frame <= frames; ++frame) {
        if (frame < frames && isDropped(random)) continue;
        links.refresh(static_cast<std::uint64_t>((frame * period + jitter(random)) * 1e9));
        queue.runAll();
    }
    EXPECT_NEAR(delegate->position(), pixelsPerSecond * seconds,
                pixelsPerSecond * seconds / 1000.0);
}

INSTANTIATE_TEST_SUITE_P(Rates, DisplayLinkScrollerDrift,
                         ::testing::Values(24.0, 59.94, 60.0, 144.0, 360.0), byValue);

} // namespace

} // namespace tessaline
