#include "prompter/controls/OverlayFade.h"

#include "support/FakeTimerMaker.h"

#include <gmock/gmock.h>

#include <vector>

namespace tessaline {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OverlayFadeTest : public ::testing::Test {
protected:
    FakeTimerMaker timers;
    int changes = 0;
    OverlayFade fade{timers, [this] { ++changes; }};
};

TEST_F(OverlayFadeTest, StartsHiddenWithoutATimer) {
    EXPECT_DOUBLE_EQ(fade.opacity(), 0.0);
    EXPECT_THAT(timers.liveIntervals(), IsEmpty());
}

TEST_F(OverlayFadeTest, IsSeenAtOnceAndForASecond) {
    fade.reveal();
    EXPECT_DOUBLE_EQ(fade.opacity(), 1.0);

    timers.advance(0.99);
    EXPECT_DOUBLE_EQ(fade.opacity(), 1.0);
    EXPECT_EQ(changes, 1);
}

TEST_F(OverlayFadeTest, FadesOutInSmallStepsWithinAThirdOfASecond) {
    fade.reveal();
    timers.advance(1.0);

    double previous = fade.opacity();
    for (int step = 0; step < 8; ++step) {
        timers.advance(1.0 / 30.0 + 1e-9);
        EXPECT_NEAR(previous - fade.opacity(), 0.125, 1e-9);
        previous = fade.opacity();
    }
    EXPECT_DOUBLE_EQ(fade.opacity(), 0.0);
}

TEST_F(OverlayFadeTest, RunsNoTimerOnceHidden) {
    fade.reveal();
    timers.advance(2.0);
    EXPECT_THAT(timers.liveIntervals(), IsEmpty());

    const int changesWhenHidden = changes;
    timers.advance(60.0);
    EXPECT_EQ(changes, changesWhenHidden);
    EXPECT_DOUBLE_EQ(fade.opacity(), 0.0);
}

TEST_F(OverlayFadeTest, EveryRevealStartsTheSecondAnew) {
    fade.reveal();
    timers.advance(0.9);
    fade.reveal();
    timers.advance(0.9);

    EXPECT_DOUBLE_EQ(fade.opacity(), 1.0);
    EXPECT_THAT(timers.liveIntervals(), ElementsAre(1.0));
}

TEST_F(OverlayFadeTest, ARevealInMidFadeBringsItBackWhole) {
    fade.reveal();
    timers.advance(1.1);
    ASSERT_LT(fade.opacity(), 1.0);

    fade.reveal();
    EXPECT_DOUBLE_EQ(fade.opacity(), 1.0);
    timers.advance(0.9);
    EXPECT_DOUBLE_EQ(fade.opacity(), 1.0);
}

TEST_F(OverlayFadeTest, StaysWhileHeldWithoutATimer) {
    fade.hold();
    fade.reveal();
    timers.advance(60.0);

    EXPECT_DOUBLE_EQ(fade.opacity(), 1.0);
    EXPECT_THAT(timers.liveIntervals(), IsEmpty());
}

TEST_F(OverlayFadeTest, FadesASecondAfterItIsLetGo) {
    fade.hold();
    timers.advance(5.0);
    fade.letGo();
    timers.advance(0.9);
    EXPECT_DOUBLE_EQ(fade.opacity(), 1.0);

    timers.advance(0.5);
    EXPECT_DOUBLE_EQ(fade.opacity(), 0.0);
}

TEST_F(OverlayFadeTest, ConcealingEndsAlsoAHold) {
    fade.hold();
    fade.conceal();
    EXPECT_DOUBLE_EQ(fade.opacity(), 0.0);

    fade.reveal();
    timers.advance(2.0);
    EXPECT_DOUBLE_EQ(fade.opacity(), 0.0);
}

TEST_F(OverlayFadeTest, StaysConcealedWhenItWasAboutToFade) {
    fade.reveal();
    fade.conceal();
    EXPECT_THAT(timers.liveIntervals(), IsEmpty());
    timers.advance(2.0);
    EXPECT_DOUBLE_EQ(fade.opacity(), 0.0);
}

} // namespace
} // namespace tessaline
