#include "platform/linux/x11/ScrollAxis.h"

#include <gmock/gmock.h>

namespace tessaline {

namespace {

TEST(ScrollAxis, TellsLinesOfAWheel) {
    ScrollAxis wheel(120.0);
    const auto down = wheel.moveTo(120.0, 0);
    EXPECT_FALSE(down.isPrecise);
    EXPECT_DOUBLE_EQ(down.amount, -1.0);
    EXPECT_DOUBLE_EQ(wheel.moveTo(-120.0, 0).amount, 2.0);
}

TEST(ScrollAxis, TellsPointsOfATouchpad) {
    ScrollAxis touchpad(15.0);
    const auto delta = touchpad.moveTo(1.5, 0);
    EXPECT_TRUE(delta.isPrecise);
    EXPECT_DOUBLE_EQ(delta.amount, -6.0);
}

TEST(ScrollAxis, TakesADeviceForATouchpadOnceItToldAPartOfALine) {
    ScrollAxis touchpad(15.0);
    EXPECT_FALSE(touchpad.moveTo(15.0, 0).isPrecise);
    EXPECT_TRUE(touchpad.moveTo(16.5, 0).isPrecise);
    const auto whole = touchpad.moveTo(1.5, 0);
    EXPECT_TRUE(whole.isPrecise);
    EXPECT_DOUBLE_EQ(whole.amount, 60.0);
}

TEST(ScrollAxis, OfNaturalScrollingCountsTheOtherWay) {
    ScrollAxis wheel(-15.0);
    EXPECT_DOUBLE_EQ(wheel.moveTo(15.0, 0).amount, 1.0);
}

TEST(ScrollAxis, ForgetsWhatOthersScrolledMeanwhile) {
    ScrollAxis wheel(15.0);
    wheel.restartAt(3000.0);
    EXPECT_DOUBLE_EQ(wheel.moveTo(2985.0, 0).amount, 1.0);
}

TEST(ScrollAxis, TakesRoundedPositionsForWholeLines) {
    ScrollAxis wheel(15.0);
    const auto delta = wheel.moveTo(15.0000001, 0);
    EXPECT_FALSE(delta.isPrecise);
    EXPECT_EQ(delta.amount, -1.0);
}

TEST(ScrollAxis, OfXWaylandMovesByWhatFingersMoved) {
    ScrollAxis axis(1.0, ScrollAxis::Source::xWayland);
    const auto delta = axis.moveTo(0.32, 1000); // 3.2 points
    EXPECT_TRUE(delta.isPrecise);
    EXPECT_NEAR(delta.amount, -3.2, 1e-9);
    const auto whole = axis.moveTo(1.32, 1016);
    EXPECT_TRUE(whole.isPrecise) << "in the middle of a movement";
    EXPECT_NEAR(whole.amount, -10.0, 1e-9);
}

TEST(ScrollAxis, OfXWaylandStillTellsLinesOfAWheel) {
    ScrollAxis axis(1.0, ScrollAxis::Source::xWayland);
    EXPECT_FALSE(axis.moveTo(1.0, 1000).isPrecise);
    EXPECT_TRUE(axis.moveTo(1.25, 2000).isPrecise);
    const auto wheel = axis.moveTo(2.25, 2500);
    EXPECT_FALSE(wheel.isPrecise) << "the fingers are long gone";
    EXPECT_EQ(wheel.amount, -1.0);
}

TEST(ScrollAxis, OfXWaylandKnowsThatTimesOverflow) {
    ScrollAxis axis(1.0, ScrollAxis::Source::xWayland);
    axis.moveTo(0.5, 0xfffffff0U);
    EXPECT_TRUE(axis.moveTo(1.5, 0x10U).isPrecise);
}

} // namespace

} // namespace tessaline
