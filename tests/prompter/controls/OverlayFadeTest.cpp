#include "prompter/controls/OverlayFade.h"

#include "support/FakeAnimationTime.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

class OverlayFadeTest : public ::testing::Test {
protected:
    FakeAnimationTime time;
    int changes = 0;
    OverlayFade fade{[this] { ++changes; }};
};

TEST_F(OverlayFadeTest, StartsHiddenWithoutAnAnimation) {
    EXPECT_DOUBLE_EQ(fade.opacity(), 0.0);
    EXPECT_FALSE(fade.isRunning());
}

TEST_F(OverlayFadeTest, IsSeenAtOnceAndForASecond) {
    fade.reveal();
    EXPECT_DOUBLE_EQ(fade.opacity(), 1.0);

    time.pass(0.99);
    EXPECT_DOUBLE_EQ(fade.opacity(), 1.0);
    EXPECT_EQ(changes, 1);
}

TEST_F(OverlayFadeTest, FadesOutInSmallStepsWithinAThirdOfASecond) {
    constexpr double secondsPerStep = 0.267 / 8;
    fade.reveal();
    // Looks in the middle of each step.
    time.pass(1.0 + secondsPerStep / 2);

    double previous = fade.opacity();
    for (int step = 0; step < 8; ++step) {
        time.pass(secondsPerStep);
        EXPECT_NEAR(previous - fade.opacity(), 0.125, 1e-9);
        previous = fade.opacity();
    }
    EXPECT_DOUBLE_EQ(fade.opacity(), 0.0);
}

TEST_F(OverlayFadeTest, RunsNothingOnceHidden) {
    fade.reveal();
    time.pass(2.0);
    EXPECT_FALSE(fade.isRunning());

    const int changesWhenHidden = changes;
    time.pass(60.0);
    EXPECT_EQ(changes, changesWhenHidden);
    EXPECT_DOUBLE_EQ(fade.opacity(), 0.0);
}

TEST_F(OverlayFadeTest, EveryRevealStartsTheSecondAnew) {
    fade.reveal();
    time.pass(0.9);
    fade.reveal();
    time.pass(0.9);

    EXPECT_DOUBLE_EQ(fade.opacity(), 1.0);
    EXPECT_TRUE(fade.isRunning());
}

TEST_F(OverlayFadeTest, ARevealInMidFadeBringsItBackWhole) {
    fade.reveal();
    time.pass(1.1);
    ASSERT_LT(fade.opacity(), 1.0);

    fade.reveal();
    EXPECT_DOUBLE_EQ(fade.opacity(), 1.0);
    time.pass(0.9);
    EXPECT_DOUBLE_EQ(fade.opacity(), 1.0);
}

TEST_F(OverlayFadeTest, StaysWhileHeldWithoutAnAnimation) {
    fade.hold();
    fade.reveal();
    time.pass(60.0);

    EXPECT_DOUBLE_EQ(fade.opacity(), 1.0);
    EXPECT_FALSE(fade.isRunning());
}

TEST_F(OverlayFadeTest, FadesASecondAfterItIsLetGo) {
    fade.hold();
    time.pass(5.0);
    fade.letGo();
    time.pass(0.9);
    EXPECT_DOUBLE_EQ(fade.opacity(), 1.0);

    time.pass(0.5);
    EXPECT_DOUBLE_EQ(fade.opacity(), 0.0);
}

TEST_F(OverlayFadeTest, ConcealingEndsAlsoAHold) {
    fade.hold();
    fade.conceal();
    EXPECT_DOUBLE_EQ(fade.opacity(), 0.0);

    fade.reveal();
    time.pass(2.0);
    EXPECT_DOUBLE_EQ(fade.opacity(), 0.0);
}

TEST_F(OverlayFadeTest, StaysConcealedWhenItWasAboutToFade) {
    fade.reveal();
    fade.conceal();
    EXPECT_FALSE(fade.isRunning());
    time.pass(2.0);
    EXPECT_DOUBLE_EQ(fade.opacity(), 0.0);
}

} // namespace
} // namespace tessaline
