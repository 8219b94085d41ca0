#include "prompter/controls/ThemedScroller.h"

#include "support/FakeAnimationTime.h"
#include "support/PaintCounter.h"
#include "support/PointerEvents.h"
#include "support/WidgetPicture.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessaline {
namespace {

// 208 points of track for 1000 of content above 300 seen: a knob of 48 points.
class ThemedScrollerTest : public ::testing::Test {
protected:
    ThemedScrollerTest() {
        window.resize(100, 208);
        scroller.setGeometry(92, 0, 8, 208);
        scroller.setRange(0, 1000);
        scroller.setPageStep(300);
        window.show();
        QCoreApplication::processEvents();
    }

    QColor pixel(int x, int y) { return pictureOf(scroller).pixelColor(x, y); }

    FakeAnimationTime time;
    QWidget window;
    ThemedScroller scroller{&window};
};

TEST_F(ThemedScrollerTest, IsEightPointsThin) {
    EXPECT_EQ(scroller.orientation(), Qt::Vertical);
    EXPECT_EQ(scroller.sizeHint().width(), 8);
}

TEST_F(ThemedScrollerTest, StartsHidden) {
    EXPECT_DOUBLE_EQ(scroller.opacity(), 0.0);
    EXPECT_TRUE(inkOf(pictureOf(scroller)).isEmpty());
    EXPECT_EQ(pixel(4, 20).alpha(), 0);
}

TEST_F(ThemedScrollerTest, LetsBeSeenWhatLiesBehindIt) {
    window.setPalette(QPalette(Qt::red));
    EXPECT_EQ(window.grab().toImage().pixelColor(96, 150),
              window.grab().toImage().pixelColor(50, 150));
}

TEST_F(ThemedScrollerTest, FillsTheSlotAndDrawsTheKnobOverIt) {
    scroller.reveal();

    EXPECT_EQ(pixel(4, 150), QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.2F));
    // 0.7 of white 0.3 over 0.2 of black.
    const QColor knob = pixel(4, 20);
    EXPECT_NEAR(knob.alphaF(), 0.7 + 0.3 * 0.2, 0.01);
    EXPECT_NEAR(knob.redF(), 0.3 * 0.7 / (0.7 + 0.3 * 0.2), 0.01);
}

TEST_F(ThemedScrollerTest, TheKnobIsAPill) {
    scroller.slotColor = Qt::transparent;
    scroller.reveal();
    const QImage picture = pictureOf(scroller, 10);

    EXPECT_EQ(scroller.knobRect(), QRectF(1, 1, 6, 46));
    EXPECT_EQ(inkOf(picture), scroller.knobRect());
    EXPECT_EQ(picture.pixelColor(14, 14).alpha(), 0) << "a corner within the radius";
    EXPECT_GT(picture.pixelColor(40, 14).alpha(), 0) << "the middle of the round end";
    EXPECT_GT(picture.pixelColor(12, 41).alpha(), 0) << "the side where the radius ends";
}

TEST_F(ThemedScrollerTest, TheKnobReachesBothEnds) {
    EXPECT_DOUBLE_EQ(scroller.knobRect().top(), 1.0);
    scroller.setValue(1000);
    EXPECT_DOUBLE_EQ(scroller.knobRect().bottom(), 207.0);
    scroller.setValue(500);
    EXPECT_DOUBLE_EQ(scroller.knobRect().center().y(), 104.0);
}

TEST_F(ThemedScrollerTest, TheKnobIsTheSameWhereverTheRangeBegins) {
    const QRectF knob = scroller.knobRect();
    scroller.setRange(-500, 500);
    scroller.setValue(-500);
    EXPECT_EQ(scroller.knobRect(), knob);
}

TEST_F(ThemedScrollerTest, TheKnobStaysLargeEnoughForTheLongestText) {
    scroller.setRange(0, std::numeric_limits<int>::max());
    scroller.setPageStep(std::numeric_limits<int>::max() / 2);
    EXPECT_NEAR(scroller.knobRect().height() + 2, 208 / 3.0, 1.0);

    scroller.setPageStep(1);
    scroller.setValue(std::numeric_limits<int>::max());
    EXPECT_DOUBLE_EQ(scroller.knobRect().height(), 22.0);
    EXPECT_DOUBLE_EQ(scroller.knobRect().bottom(), 207.0);
}

TEST_F(ThemedScrollerTest, DrawsNothingWhereThereIsNothingToScroll) {
    scroller.setRange(0, 0);
    scroller.reveal();
    EXPECT_EQ(pixel(4, 20).alpha(), 0);
    scroller.setPageStep(0);
    EXPECT_EQ(scroller.knobRect(), QRectF(scroller.rect()).adjusted(1, 1, -1, -1));
}

TEST_F(ThemedScrollerTest, LeavesTheWheelToWhatLiesBehindIt) {
    wheelDown(scroller);
    EXPECT_EQ(scroller.value(), 0);
}

TEST_F(ThemedScrollerTest, IsSeenWhenItIsAskedToAndFadesAfterwards) {
    scroller.reveal();
    EXPECT_DOUBLE_EQ(scroller.opacity(), 1.0);

    time.pass(1.15);
    EXPECT_GT(scroller.opacity(), 0.0);
    EXPECT_LT(scroller.opacity(), 1.0);
    time.pass(0.3);
    EXPECT_DOUBLE_EQ(scroller.opacity(), 0.0);
}

TEST_F(ThemedScrollerTest, IsSeenAsLongAsThePointerIsOnIt) {
    pointerEnters(scroller);
    time.pass(30.0);
    EXPECT_DOUBLE_EQ(scroller.opacity(), 1.0);

    pointerLeaves(scroller);
    time.pass(2.0);
    EXPECT_DOUBLE_EQ(scroller.opacity(), 0.0);
}

TEST_F(ThemedScrollerTest, AMovingValueDoesNotShowIt) {
    scroller.setValue(500);
    EXPECT_DOUBLE_EQ(scroller.opacity(), 0.0);
}

TEST_F(ThemedScrollerTest, PaintsNothingForAMovingValueWhileHidden) {
    PaintCounter paints(scroller);
    paints.take();

    for (int value = 1; value <= 1000; value += 37) {
        scroller.setValue(value);
        EXPECT_EQ(paints.take(), 0);
    }
    scroller.setRange(0, 5000);
    EXPECT_EQ(paints.take(), 0);
}

TEST_F(ThemedScrollerTest, PaintsOnlyWhenTheKnobComesToOtherPixels) {
    scroller.setRange(0, 100000);
    scroller.setPageStep(30000);
    scroller.reveal();
    PaintCounter paints(scroller);
    paints.take();

    int painted = 0;
    for (int value = 1; value <= 10000; value += 10) {
        scroller.setValue(value);
        painted += paints.take();
    }
    // A tenth of the 160 points that the knob can travel.
    EXPECT_NEAR(painted, 16, 1);
}

TEST_F(ThemedScrollerTest, PaintsNothingOnceItHasFaded) {
    PaintCounter paints(scroller);
    scroller.reveal();
    EXPECT_GT(paints.take(), 0);
    time.pass(2.0);
    paints.take();

    time.pass(60.0);
    EXPECT_EQ(paints.take(), 0);
}

TEST_F(ThemedScrollerTest, TheKnobIsDraggedByTheMouse) {
    pointerEnters(scroller);
    mouseDown(scroller, {4, 20});
    mouseDrag(scroller, {4, 100});
    mouseUp(scroller, {4, 100});

    EXPECT_NEAR(scroller.value(), 80 * 1000 / 160, 4);
}

TEST_F(ThemedScrollerTest, AClickInTheSlotTurnsAPage) {
    mouseDown(scroller, {4, 180});
    mouseUp(scroller, {4, 180});
    EXPECT_EQ(scroller.value(), 300);

    mouseDown(scroller, {4, 2});
    mouseUp(scroller, {4, 2});
    EXPECT_EQ(scroller.value(), 0);
}

TEST_F(ThemedScrollerTest, IsHiddenWhenItsWindowComesBack) {
    pointerEnters(scroller);
    window.hide();
    window.show();
    EXPECT_DOUBLE_EQ(scroller.opacity(), 0.0);
}

} // namespace
} // namespace tessaline
