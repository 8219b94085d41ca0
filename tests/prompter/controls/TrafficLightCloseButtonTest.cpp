#include "prompter/controls/TrafficLightCloseButton.h"

#include "support/PointerEvents.h"
#include "support/WidgetPicture.h"

#include <QApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <cmath>

namespace tessaline {
namespace {

constexpr int fine = 20; // pixels a point
constexpr double halfStroke = 0.25;
constexpr double tolerance = 0.11;

class TrafficLightCloseButtonTest : public ::testing::Test {
protected:
    TrafficLightCloseButtonTest() { button.resize(12, 12); }

    // Away from the cross, in the lower part of the circle.
    QColor fill() { return pictureOf(button, fine).pixelColor(6 * fine, 10 * fine); }

    QRectF crossBounds() {
        const QImage plain = pictureOf(button, fine);
        pointerEnters(button);
        const QImage hovered = pictureOf(button, fine);
        return boundsOf(hovered,
                        [&](int x, int y) { return hovered.pixel(x, y) != plain.pixel(x, y); });
    }

    static constexpr QPoint middle{6, 6};

    TrafficLightCloseButton button;
};

void expectNear(const QRectF& actual, const QRectF& expected) {
    EXPECT_NEAR(actual.left(), expected.left(), tolerance);
    EXPECT_NEAR(actual.top(), expected.top(), tolerance);
    EXPECT_NEAR(actual.right(), expected.right(), tolerance);
    EXPECT_NEAR(actual.bottom(), expected.bottom(), tolerance);
}

TEST_F(TrafficLightCloseButtonTest, IsTwelveByTwelveByItself) {
    EXPECT_EQ(button.sizeHint(), QSize(12, 12));
}

TEST_F(TrafficLightCloseButtonTest, FillsTwelveByTwelveWithACircle) {
    expectNear(inkOf(pictureOf(button, fine)), QRectF(0, 0, 12, 12));

    const QImage picture = pictureOf(button, fine);
    EXPECT_EQ(picture.pixelColor(fine, fine).alpha(), 0) << "the corners are empty";
}

TEST_F(TrafficLightCloseButtonTest, DrawsAThinRimAroundTheCircle) {
    button.resize(20, 12);
    // Half of the rim lies outside of the circle, over nothing.
    const QColor rim = pictureOf(button, fine).pixelColor(4 * fine - 2, 6 * fine);
    EXPECT_NEAR(rim.redF(), 0.85, 0.01);
    EXPECT_NEAR(rim.greenF(), 0.28, 0.01);
    EXPECT_NEAR(rim.blueF(), 0.24, 0.01);
    EXPECT_NEAR(rim.alphaF(), 0.6, 0.01);
}

TEST_F(TrafficLightCloseButtonTest, DrawsTheCrossDarkOverTheCircle) {
    pointerEnters(button);
    // On one of its arms; in the very middle both diagonals cover each other.
    const QColor cross = pictureOf(button, fine).pixelColor(6 * fine + 30, 6 * fine + 30);
    EXPECT_NEAR(cross.redF(), 0.9 * 0.3 + 0.1 * 1.0, 0.01);
    EXPECT_NEAR(cross.greenF(), 0.1 * 0.373, 0.01);
    EXPECT_NEAR(cross.blueF(), 0.1 * 0.341, 0.01);
}

TEST_F(TrafficLightCloseButtonTest, CentresTheCircleInAWiderButton) {
    button.resize(20, 12);

    const QRectF ink = inkOf(pictureOf(button, fine));
    EXPECT_NEAR(ink.left(), 4 - halfStroke, tolerance);
    EXPECT_NEAR(ink.right(), 16 + halfStroke, tolerance);
}

TEST_F(TrafficLightCloseButtonTest, CentresTheCircleInATallerButton) {
    button.resize(12, 30);

    const QRectF ink = inkOf(pictureOf(button, fine));
    EXPECT_NEAR(ink.top(), 9 - halfStroke, tolerance);
    EXPECT_NEAR(ink.bottom(), 21 + halfStroke, tolerance);
}

// Each diagonal ends 2.4 points from the centre in x and y; its square-cut end of width 1.2 reaches
// 0.6 / sqrt 2 further.
TEST_F(TrafficLightCloseButtonTest, TheCrossSpansTwoFifthsOfTheDiameter) {
    const double reach = 2.4 + 0.6 / std::sqrt(2.0);

    expectNear(crossBounds(), QRectF(6 - reach, 6 - reach, 2 * reach, 2 * reach));
}

TEST_F(TrafficLightCloseButtonTest, TheCrossGrowsWithTheCircleAndStaysInItsMiddle) {
    button.resize(40, 24);
    const double reach = 4.8 + 0.6 / std::sqrt(2.0);

    expectNear(crossBounds(), QRectF(20 - reach, 12 - reach, 2 * reach, 2 * reach));
}

TEST_F(TrafficLightCloseButtonTest, TheCrossGoesWithThePointer) {
    const QImage before = pictureOf(button, fine);
    pointerEnters(button);
    EXPECT_TRUE(button.isHovered());
    EXPECT_NE(pictureOf(button, fine), before);

    pointerLeaves(button);
    EXPECT_FALSE(button.isHovered());
    EXPECT_EQ(pictureOf(button, fine), before);
}

TEST_F(TrafficLightCloseButtonTest, TakesThePressedColourWhileTheMouseIsDown) {
    EXPECT_EQ(fill().rgb(), qRgb(255, 95, 87));

    mouseDown(button, middle);
    EXPECT_TRUE(button.isPressed());
    EXPECT_EQ(fill().rgb(), qRgb(212, 64, 56));

    mouseUp(button, middle);
    EXPECT_FALSE(button.isPressed());
    EXPECT_EQ(fill().rgb(), qRgb(255, 95, 87));
}

TEST_F(TrafficLightCloseButtonTest, ActsOnReleaseInside) {
    const QSignalSpy clicks(&button, &QAbstractButton::clicked);

    mouseDown(button, middle);
    EXPECT_EQ(clicks.count(), 0);
    mouseUp(button, middle);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(TrafficLightCloseButtonTest, DoesNotActOnReleaseOutside) {
    const QSignalSpy clicks(&button, &QAbstractButton::clicked);

    mouseDown(button, middle);
    mouseDrag(button, {40, 40});
    mouseUp(button, {40, 40});

    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(TrafficLightCloseButtonTest, SurvivesAnActionThatDeletesIt) {
    auto* doomed = new TrafficLightCloseButton;
    doomed->resize(12, 12);
    bool acted = false;
    QObject::connect(doomed, &QAbstractButton::clicked, [&] {
        acted = true;
        delete doomed;
    });

    mouseDown(*doomed, middle);
    mouseUp(*doomed, middle);

    EXPECT_TRUE(acted);
}

TEST_F(TrafficLightCloseButtonTest, ShowsARingForTheKeyboardFocus) {
    QWidget window;
    auto* const first = new TrafficLightCloseButton(&window);
    auto* const second = new TrafficLightCloseButton(&window);
    second->resize(12, 12);
    window.show();
    QApplication::setActiveWindow(&window);
    first->setFocus();
    const QImage unfocused = pictureOf(*second);

    QTest::keyClick(first, Qt::Key_Tab);

    ASSERT_TRUE(second->hasFocus());
    EXPECT_NE(pictureOf(*second), unfocused);
}

} // namespace
} // namespace tessaline
