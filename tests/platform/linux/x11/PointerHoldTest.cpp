#include "platform/linux/x11/PointerHold.h"

#include <gmock/gmock.h>

#include <optional>

namespace tessaline {

namespace {

using namespace std::chrono_literals;

constexpr unsigned leftButton = 1;
constexpr unsigned middleButton = 2;

class PointerHoldTest : public ::testing::Test {
protected:
    void travel() { hold.moved(20.0, now); }

    PointerHold hold;
    PointerHold::Time now{1h};
};

TEST_F(PointerHoldTest, LastsWhileControlIsDown) {
    EXPECT_FALSE(hold.isWanted(now));
    hold.controlChanged(true);
    EXPECT_TRUE(hold.isWanted(now));
    EXPECT_EQ(hold.nextLook(now), std::nullopt);
    hold.controlChanged(false);
    EXPECT_FALSE(hold.isWanted(now));
}

TEST_F(PointerHoldTest, EndsWhenAKeyMakesItAChord) {
    hold.controlChanged(true);
    hold.otherKeyPressed();
    EXPECT_FALSE(hold.isWanted(now));
    hold.controlChanged(false);
    hold.controlChanged(true);
    EXPECT_TRUE(hold.isWanted(now));
}

TEST_F(PointerHoldTest, IsNotHinderedByKeysBeforeControl) {
    hold.otherKeyPressed();
    hold.controlChanged(true);
    EXPECT_TRUE(hold.isWanted(now));
}

TEST_F(PointerHoldTest, PausesWhileAButtonOfOthersIsDown) {
    hold.controlChanged(true);
    hold.foreignButtonChanged(leftButton, true);
    EXPECT_FALSE(hold.isWanted(now));
    EXPECT_EQ(hold.nextLook(now), std::nullopt);
    hold.foreignButtonChanged(leftButton, false);
    EXPECT_TRUE(hold.isWanted(now));
}

TEST_F(PointerHoldTest, WaitsForAButtonThatWentDownBeforeControl) {
    hold.foreignButtonChanged(leftButton, true);
    hold.controlChanged(true);
    EXPECT_FALSE(hold.isWanted(now));
    hold.foreignButtonChanged(leftButton, false);
    EXPECT_TRUE(hold.isWanted(now));
}

TEST_F(PointerHoldTest, ForgetsTheButtonsOfOthersWithControl) {
    hold.controlChanged(true);
    hold.foreignButtonChanged(leftButton, true);
    hold.controlChanged(false);
    hold.controlChanged(true);
    EXPECT_TRUE(hold.isWanted(now));
}

TEST_F(PointerHoldTest, TakesAButtonToldTwiceForOne) {
    hold.controlChanged(true);
    hold.foreignButtonChanged(leftButton, true);
    hold.foreignButtonChanged(leftButton, true);
    hold.foreignButtonChanged(leftButton, false);
    EXPECT_TRUE(hold.isWanted(now));
}

TEST_F(PointerHoldTest, LastsUntilOurButtonsAreUp) {
    hold.controlChanged(true);
    hold.ownButtonChanged(middleButton, true);
    hold.controlChanged(false);
    EXPECT_TRUE(hold.isWanted(now));
    hold.ownButtonChanged(middleButton, false);
    EXPECT_FALSE(hold.isWanted(now));
}

TEST_F(PointerHoldTest, PausesWhileThePointerTravels) {
    hold.controlChanged(true);
    travel();
    EXPECT_FALSE(hold.isWanted(now));
    EXPECT_EQ(hold.nextLook(now), now + 120ms);
    now += 100ms;
    travel();
    now += 100ms;
    EXPECT_FALSE(hold.isWanted(now));
    now += 20ms;
    EXPECT_TRUE(hold.isWanted(now));
}

TEST_F(PointerHoldTest, IsNotEndedByAnUnsteadyHand) {
    hold.controlChanged(true);
    hold.moved(6.0, now);
    hold.moved(6.0, now);
    EXPECT_TRUE(hold.isWanted(now));
    now += 200ms;
    hold.moved(6.0, now);
    EXPECT_TRUE(hold.isWanted(now));
}

TEST_F(PointerHoldTest, IsNotEndedByMovementWhileScrolling) {
    hold.controlChanged(true);
    hold.scrolled(now);
    now += 399ms;
    travel();
    EXPECT_TRUE(hold.isWanted(now));
    now += 1ms;
    travel();
    EXPECT_FALSE(hold.isWanted(now));
}

TEST_F(PointerHoldTest, ComesBackAtOnceWhenTheUserScrolls) {
    hold.controlChanged(true);
    travel();
    hold.scrolled(now);
    EXPECT_TRUE(hold.isWanted(now));
}

TEST_F(PointerHoldTest, IsTriedAgainAfterItWasRefused) {
    hold.controlChanged(true);
    hold.refused(now);
    EXPECT_FALSE(hold.isWanted(now));
    EXPECT_EQ(hold.nextLook(now), now + 120ms);
    EXPECT_TRUE(hold.isWanted(now + 120ms));
}

TEST_F(PointerHoldTest, IgnoresButtonsBeyondAllThatExist) {
    hold.controlChanged(true);
    hold.foreignButtonChanged(200, true);
    EXPECT_TRUE(hold.isWanted(now));
}

} // namespace

} // namespace tessaline
