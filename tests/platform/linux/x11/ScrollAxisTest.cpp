#include "platform/linux/x11/ScrollAxis.h"

#include <gmock/gmock.h>

namespace tessaline {

namespace {

TEST(ScrollAxis, TellsLinesOfAWheel) {
    ScrollAxis wheel(120.0);
    const auto down = wheel.moveTo(120.0);
    EXPECT_FALSE(down.isPrecise);
    EXPECT_DOUBLE_EQ(down.amount, -1.0);
    EXPECT_DOUBLE_EQ(wheel.moveTo(-120.0).amount, 2.0);
}

TEST(ScrollAxis, TellsPointsOfATouchpad) {
    ScrollAxis touchpad(15.0);
    const auto delta = touchpad.moveTo(1.5);
    EXPECT_TRUE(delta.isPrecise);
    EXPECT_DOUBLE_EQ(delta.amount, -6.0);
}

TEST(ScrollAxis, TakesADeviceForATouchpadOnceItToldAPartOfALine) {
    ScrollAxis touchpad(15.0);
    EXPECT_FALSE(touchpad.moveTo(15.0).isPrecise);
    EXPECT_TRUE(touchpad.moveTo(16.5).isPrecise);
    const auto whole = touchpad.moveTo(1.5);
    EXPECT_TRUE(whole.isPrecise);
    EXPECT_DOUBLE_EQ(whole.amount, 60.0);
}

TEST(ScrollAxis, OfNaturalScrollingCountsTheOtherWay) {
    ScrollAxis wheel(-15.0);
    EXPECT_DOUBLE_EQ(wheel.moveTo(15.0).amount, 1.0);
}

TEST(ScrollAxis, ForgetsWhatOthersScrolledMeanwhile) {
    ScrollAxis wheel(15.0);
    wheel.restartAt(3000.0);
    EXPECT_DOUBLE_EQ(wheel.moveTo(2985.0).amount, 1.0);
}

TEST(ScrollAxis, TakesRoundedPositionsForWholeLines) {
    ScrollAxis wheel(15.0);
    const auto delta = wheel.moveTo(15.0000001);
    EXPECT_FALSE(delta.isPrecise);
    EXPECT_EQ(delta.amount, -1.0);
}

} // namespace

} // namespace tessaline
