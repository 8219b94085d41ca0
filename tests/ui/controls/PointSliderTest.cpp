#include "ui/controls/PointSlider.h"

#include "appearance/SystemPalette.h"
#include "support/PointerEvents.h"
#include "support/PrintQt.h"
#include "support/WidgetPicture.h"

#include <QAccessible>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class PointSliderTest : public testing::Test {
protected:
    PointSliderTest() {
        slider.setLimits(380, 800);
        slider.setPoints(600);
        slider.resize(260, slider.sizeHint().height());
        QObject::connect(&slider, &PointSlider::moved, [this] { ++moves; });
    }

    PointSlider slider{u"Width"_s, 260};
    int moves = 0;
};

TEST_F(PointSliderTest, KeepsExactlyWhatWasSet) {
    slider.setPoints(600.3);
    EXPECT_EQ(slider.points(), 600.3);
    EXPECT_EQ(moves, 0);
}

TEST_F(PointSliderTest, BringsTheValueIntoTheRange) {
    slider.setPoints(1000);
    EXPECT_EQ(slider.points(), 800);
    slider.setPoints(0);
    EXPECT_EQ(slider.points(), 380);
    slider.setLimits(500, 700.3);
    EXPECT_EQ(slider.points(), 500);
    slider.setPoints(9999);
    EXPECT_EQ(slider.points(), 700.3);
    EXPECT_EQ(moves, 0);
}

TEST_F(PointSliderTest, GivesMultiplesOfItsStepOnly) {
    slider.setLimits(60, 300);
    slider.setStep(5);
    slider.setPoints(150);
    QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_EQ(slider.points(), 155);
    QTest::keyClick(&slider, Qt::Key_Left);
    QTest::keyClick(&slider, Qt::Key_Left);
    EXPECT_EQ(slider.points(), 145);
    QTest::keyClick(&slider, Qt::Key_PageUp);
    EXPECT_EQ(slider.points(), 165);
    QTest::keyClick(&slider, Qt::Key_End);
    EXPECT_EQ(slider.points(), 300);
    EXPECT_EQ(moves, 5);
    for (const int x : {20, 83, 131, 201}) {
        mouseDown(slider, QPoint(x, 10));
        mouseUp(slider, QPoint(x, 10));
        EXPECT_EQ(std::fmod(slider.points(), 5), 0) << x;
        EXPECT_NEAR(slider.points(), 60 + 240 * x / 260.0, 12);
    }
}

TEST_F(PointSliderTest, TellsNoMoveThatEndsAtTheSameStep) {
    slider.setLimits(0, 10);
    slider.setStep(5);
    slider.setPoints(5);
    const int middle = slider.width() / 2;
    mouseDown(slider, QPoint(middle, 10));
    mouseDrag(slider, QPoint(middle + 8, 10));
    mouseUp(slider, QPoint(middle + 8, 10));
    EXPECT_EQ(slider.points(), 5);
    EXPECT_EQ(moves, 0);
}

TEST_F(PointSliderTest, MayHaveNoRange) {
    slider.setLimits(0, 0);
    EXPECT_EQ(slider.points(), 0);
    QTest::keyClick(&slider, Qt::Key_Right);
    mouseDown(slider, QPoint(200, 10));
    mouseUp(slider, QPoint(200, 10));
    EXPECT_EQ(slider.points(), 0);
}

TEST_F(PointSliderTest, TellsByColourHowFarItIs) {
    slider.setPoints(590);
    const QImage picture = pictureOf(slider);
    const int middle = slider.height() / 2;
    EXPECT_EQ(picture.pixelColor(6, middle), SystemPalette::blue);
    EXPECT_EQ(picture.pixelColor(130, middle), SystemPalette::white);
    EXPECT_EQ(picture.pixelColor(254, middle), SystemPalette::track);
}

TEST_F(PointSliderTest, MovesByOnePointWithTheArrows) {
    QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_EQ(slider.points(), 601);
    QTest::keyClick(&slider, Qt::Key_Left);
    QTest::keyClick(&slider, Qt::Key_Left);
    EXPECT_EQ(slider.points(), 599);
    EXPECT_EQ(moves, 3);
}

TEST_F(PointSliderTest, MovesByATenthOfTheRangeWithThePageKeysAndToTheEndsWithHomeAndEnd) {
    QTest::keyClick(&slider, Qt::Key_PageUp);
    EXPECT_EQ(slider.points(), 642);
    QTest::keyClick(&slider, Qt::Key_End);
    EXPECT_EQ(slider.points(), 800);
    QTest::keyClick(&slider, Qt::Key_Home);
    EXPECT_EQ(slider.points(), 380);
}

TEST_F(PointSliderTest, ReportsTheLimitItselfAtTheEnds) {
    slider.setLimits(-100.3, 100.3);
    QTest::keyClick(&slider, Qt::Key_End);
    EXPECT_EQ(slider.points(), 100.3);
    QTest::keyClick(&slider, Qt::Key_Home);
    EXPECT_EQ(slider.points(), -100.3);
}

TEST_F(PointSliderTest, JumpsToWhereTheGrooveIsPressedAndFollowsFromThere) {
    mouseDown(slider, QPoint(65, 10));
    EXPECT_NEAR(slider.points(), 380 + 420 * 0.23, 10);
    const double jumped = slider.points();
    EXPECT_EQ(moves, 1);
    mouseDrag(slider, QPoint(130, 10));
    EXPECT_NEAR(slider.points(), 590, 5);
    EXPECT_GT(slider.points(), jumped);
    mouseUp(slider, QPoint(130, 10));
}

TEST_F(PointSliderTest, DoesNotMoveWhenItsKnobIsPressed) {
    slider.setPoints(590);
    mouseDown(slider, QPoint(134, 10)); // the knob's middle is at 130
    mouseUp(slider, QPoint(134, 10));
    EXPECT_EQ(slider.points(), 590);
    EXPECT_EQ(moves, 0);
}

TEST_F(PointSliderTest, IgnoresTheWheelUnlessItHasTheFocus) {
    wheelDown(slider);
    EXPECT_EQ(slider.points(), 600);
    EXPECT_EQ(moves, 0);
}

TEST_F(PointSliderTest, KeysStepOverTheDeadZone) {
    slider.setLimits(-300, 300);
    slider.setDeadZone(20);
    slider.setPoints(0);
    QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_EQ(slider.points(), 21);
    slider.setPoints(0);
    QTest::keyClick(&slider, Qt::Key_Left);
    EXPECT_EQ(slider.points(), -21);
    slider.setPoints(0);
    QTest::keyClick(&slider, Qt::Key_PageUp);
    EXPECT_EQ(slider.points(), 60);
    slider.setPoints(0);
    QTest::keyClick(&slider, Qt::Key_PageDown);
    EXPECT_EQ(slider.points(), -60);
    QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_EQ(slider.points(), -59);
}

TEST_F(PointSliderTest, SpeaksInPoints) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&slider);
    ASSERT_TRUE(spoken);
    EXPECT_EQ(spoken->role(), QAccessible::Slider);
    EXPECT_EQ(spoken->text(QAccessible::Name), u"Width"_s);
    QAccessibleValueInterface* value = spoken->valueInterface();
    ASSERT_TRUE(value);
    EXPECT_EQ(value->currentValue().toDouble(), 600);
    EXPECT_EQ(value->minimumValue().toDouble(), 380);
    EXPECT_EQ(value->maximumValue().toDouble(), 800);
    EXPECT_EQ(value->minimumStepSize().toDouble(), 1);
    value->setCurrentValue(620.5);
    EXPECT_EQ(slider.points(), 620.5);
    EXPECT_EQ(moves, 1);
}

} // namespace
} // namespace tessaline
