#include "prompter/controls/PressableButton.h"

#include "support/CaseName.h"
#include "support/PaintCounter.h"
#include "support/PointerEvents.h"
#include "support/WidgetPicture.h"

#include <QAccessible>
#include <QApplication>
#include <QIcon>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr QPoint inside{12, 12};
constexpr QPoint outside{60, 12};

int strongestAlpha(const QImage& picture) {
    int strongest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            strongest = std::max(strongest, qAlpha(picture.pixel(x, y)));
    }
    return strongest;
}

class PressableButtonTest : public ::testing::Test {
protected:
    PressableButtonTest() { button.resize(24, 24); }

    QColor corner() { return pictureOf(button).pixelColor(3, 3); }

    // A glyph with pixels that are covered wholly.
    PressableButton button{u"\u23EF"_s, 16};
};

TEST_F(PressableButtonTest, StartsWithTheUsualLook) {
    EXPECT_DOUBLE_EQ(button.normalAlpha, 0.6);
    EXPECT_DOUBLE_EQ(button.hoverAlpha, 1.0);
    EXPECT_DOUBLE_EQ(button.pressedAlpha, 0.3);
    EXPECT_FALSE(button.normalBackgroundColor);
    EXPECT_FALSE(button.pressedBackgroundColor);
    EXPECT_FALSE(button.isHovered());
    EXPECT_FALSE(button.isPressed());
}

TEST_F(PressableButtonTest, IsDarkWhileItIsDisabled) {
    button.setEnabled(false);
    pointerEnters(button);
    EXPECT_NEAR(strongestAlpha(pictureOf(button)), 0.3 * 255, 1);
}

TEST_F(PressableButtonTest, DrawsInTheAlphaOfItsState) {
    EXPECT_NEAR(strongestAlpha(pictureOf(button)), 0.6 * 255, 1);

    pointerEnters(button);
    EXPECT_EQ(strongestAlpha(pictureOf(button)), 255);

    mouseDown(button, inside);
    EXPECT_NEAR(strongestAlpha(pictureOf(button)), 0.3 * 255, 1);

    mouseUp(button, inside);
    EXPECT_EQ(strongestAlpha(pictureOf(button)), 255);

    pointerLeaves(button);
    EXPECT_NEAR(strongestAlpha(pictureOf(button)), 0.6 * 255, 1);
}

TEST_F(PressableButtonTest, StaysPressedWhileTheHeldMouseStraysOutside) {
    pointerEnters(button);
    mouseDown(button, inside);
    mouseDrag(button, outside);
    EXPECT_DOUBLE_EQ(button.alpha(), 0.3);

    mouseUp(button, outside);
    EXPECT_DOUBLE_EQ(button.alpha(), 1.0) << "until the pointer is known to be out";
    pointerLeaves(button);
    EXPECT_DOUBLE_EQ(button.alpha(), 0.6);
}

TEST_F(PressableButtonTest, IsAtRestAfterAPressWithoutHover) {
    mouseDown(button, inside);
    EXPECT_DOUBLE_EQ(button.alpha(), 0.3);
    mouseUp(button, inside);
    EXPECT_DOUBLE_EQ(button.alpha(), 0.6);
}

TEST_F(PressableButtonTest, APressWhoseReleaseIsLostEndsWhenThePointerMovesOn) {
    mouseDown(button, inside);
    button.setDown(false);
    EXPECT_DOUBLE_EQ(button.alpha(), 0.3);

    pointerEnters(button);
    EXPECT_DOUBLE_EQ(button.alpha(), 1.0);
}

TEST_F(PressableButtonTest, DisablingEndsThePress) {
    mouseDown(button, inside);
    button.setEnabled(false);
    EXPECT_FALSE(button.isPressed());
}

TEST_F(PressableButtonTest, ActsOnReleaseInsideOnly) {
    const QSignalSpy clicks(&button, &QAbstractButton::clicked);

    mouseDown(button, inside);
    mouseDrag(button, outside);
    mouseUp(button, outside);
    EXPECT_EQ(clicks.count(), 0);

    mouseDown(button, inside);
    EXPECT_EQ(clicks.count(), 0);
    mouseUp(button, inside);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(PressableButtonTest, HasNoBackgroundUnlessGivenOne) {
    EXPECT_EQ(corner().alpha(), 0);
    mouseDown(button, inside);
    EXPECT_EQ(corner().alpha(), 0);
}

TEST_F(PressableButtonTest, KeepsItsBackgroundWhilePressedWithoutAPressedOne) {
    button.normalBackgroundColor = QColor(10, 200, 30);
    EXPECT_NEAR(corner().green(), 200, 2);

    mouseDown(button, inside);
    EXPECT_EQ(button.backgroundColor(), QColor(10, 200, 30));
    EXPECT_NEAR(corner().green(), 200, 2);
    EXPECT_NEAR(corner().alpha(), 0.3 * 255, 1);
}

TEST_F(PressableButtonTest, ItsBackgroundHasNoRim) {
    button.normalBackgroundColor = QColor(10, 200, 30);
    const QImage picture = pictureOf(button);
    EXPECT_EQ(picture.pixelColor(8, 0), picture.pixelColor(8, 1));
    EXPECT_EQ(picture.pixelColor(0, 8), picture.pixelColor(1, 8));
}

TEST_F(PressableButtonTest, TakesThePressedBackgroundForTheTimeOfThePress) {
    button.normalBackgroundColor = QColor(10, 200, 30);
    button.pressedBackgroundColor = QColor(200, 10, 30);

    mouseDown(button, inside);
    EXPECT_NEAR(corner().red(), 200, 2);
    mouseUp(button, inside);
    EXPECT_NEAR(corner().green(), 200, 2);
}

TEST_F(PressableButtonTest, ShowsAnIconInPlaceOfTheText) {
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    button.setIcon(QIcon(pixmap));
    button.setIconSize({16, 16});
    pointerEnters(button);

    EXPECT_EQ(pictureOf(button).pixelColor(inside), QColor(Qt::red));
    EXPECT_EQ(inkOf(pictureOf(button)), QRectF(4, 4, 16, 16));
}

TEST_F(PressableButtonTest, IsAButtonNamedAfterItsGlyphUnlessNamed) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&button);
    ASSERT_NE(interface, nullptr);
    EXPECT_EQ(interface->role(), QAccessible::Button);
    EXPECT_EQ(interface->text(QAccessible::Name), u"\u23EF"_s);

    button.setAccessibleName(u"Minimize"_s);
    EXPECT_EQ(interface->text(QAccessible::Name), u"Minimize"_s);
}

TEST_F(PressableButtonTest, SetsGlyphSizeAndWeightTogether) {
    button.setGlyph(u"\u2014"_s, 20, QFont::Normal);
    const double thin = inkOf(pictureOf(button, 20)).height();
    pointerEnters(button);
    button.setGlyph(u"\u2014"_s, 20, QFont::Bold);

    EXPECT_EQ(button.text(), u"\u2014"_s);
    EXPECT_EQ(button.font().weight(), QFont::Bold);
    EXPECT_GT(inkOf(pictureOf(button, 20)).height(), thin + 0.5);
}

struct GlyphCase {
    QString glyph;
    double points;
    QFont::Weight weight = QFont::Normal;
};

class PressableButtonGlyph : public ::testing::TestWithParam<std::tuple<GlyphCase, int>> {
protected:
    PressableButtonGlyph() {
        const auto& [glyph, points, weight] = std::get<GlyphCase>(GetParam());
        button.setGlyph(glyph, points, weight);
        button.hoverAlpha = 1.0;
        pointerEnters(button);
    }

    int pixelsPerPoint() const { return std::get<int>(GetParam()); }

    PressableButton button;
};

TEST_P(PressableButtonGlyph, IsWholeWithRoomAroundItAtTheSizeItAsksFor) {
    button.resize(button.sizeHint());
    const QImage picture = pictureOf(button, pixelsPerPoint());
    const QRectF ink =
        boundsOf(picture, [&](int x, int y) { return qAlpha(picture.pixel(x, y)) > 0; });

    ASSERT_FALSE(ink.isEmpty());
    EXPECT_TRUE(QRectF(button.rect()).adjusted(1, 1, -1, -1).contains(ink))
        << ink.left() << ' ' << ink.top() << ' ' << ink.right() << ' ' << ink.bottom();
}

TEST_P(PressableButtonGlyph, IsCentredToThePixel) {
    for (const QSize size : {QSize(24, 24), QSize(25, 31), QSize(40, 22)}) {
        button.resize(size);
        const QRectF ink = inkOf(pictureOf(button, pixelsPerPoint()));
        EXPECT_NEAR(ink.center().x(), size.width() / 2.0, 1.0);
        EXPECT_NEAR(ink.center().y(), size.height() / 2.0, 1.0);
    }
}

TEST_P(PressableButtonGlyph, IsWhiteThroughout) {
    button.resize(32, 32);
    const QImage picture = pictureOf(button, pixelsPerPoint());
    const QRectF tinted = boundsOf(picture, [&](int x, int y) {
        const QColor color = picture.pixelColor(x, y);
        return color.alpha() > 8 && std::min({color.red(), color.green(), color.blue()}) < 240;
    });

    EXPECT_TRUE(tinted.isEmpty());
    EXPECT_EQ(strongestAlpha(picture), 255);
}

INSTANTIATE_TEST_SUITE_P(
    OfTheStrip, PressableButtonGlyph,
    ::testing::Combine(::testing::Values(GlyphCase{u"\u2014"_s, 14, QFont::Bold},
                                         GlyphCase{u"\u25A1"_s, 14, QFont::DemiBold},
                                         GlyphCase{u"\u2699\uFE0E"_s, 16},
                                         GlyphCase{u"\u23EF"_s, 16}, GlyphCase{u"\U0001F4CB"_s, 14},
                                         GlyphCase{u"\U0001F4C4"_s, 14},
                                         GlyphCase{u"Ag"_s, 14, QFont::Bold}),
                       ::testing::Values(1, 2)),
    byValue);

TEST(PressableButtonGlyphs, OfStraightStrokesAreSharp) {
    PressableButton button;
    pointerEnters(button);
    button.resize(18, 18);
    for (const auto& [glyph, points, weight] :
         {GlyphCase{u"\u2014"_s, 12, QFont::Normal}, GlyphCase{u"\u2014"_s, 14, QFont::Bold},
          GlyphCase{u"\u25A1"_s, 14, QFont::DemiBold}}) {
        button.setGlyph(glyph, points, weight);
        for (const int pixelsPerPoint : {1, 2, 3}) {
            const QImage picture = pictureOf(button, pixelsPerPoint);
            const QRectF shades = boundsOf(picture, [&](int x, int y) {
                const int alpha = qAlpha(picture.pixel(x, y));
                return alpha > 0 && alpha < 255;
            });
            EXPECT_TRUE(shades.isEmpty())
                << glyph.toStdString() << ' ' << points << ' ' << pixelsPerPoint;
        }
    }
}

// In a window of its own, because focus and painting need one.
class ShownPressableButton : public ::testing::Test {
protected:
    ShownPressableButton() {
        window.resize(100, 40);
        field.setGeometry(40, 0, 60, 24);
        button.setGeometry(0, 0, 24, 24);
        QWidget::setTabOrder(&field, &button);
        window.show();
        QApplication::setActiveWindow(&window);
        field.setFocus();
        QCoreApplication::processEvents();
    }

    QWidget window;
    QLineEdit field{&window};
    PressableButton button{u"\u25A1"_s, 14, &window};
};

TEST_F(ShownPressableButton, LeavesTheFocusWhereItWasWhenClicked) {
    ASSERT_TRUE(field.hasFocus());
    QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, inside);
    EXPECT_TRUE(field.hasFocus());
}

TEST_F(ShownPressableButton, IsReachedByTabAndPressedBySpace) {
    const QSignalSpy clicks(&button, &QAbstractButton::clicked);
    QTest::keyClick(&field, Qt::Key_Tab);
    ASSERT_TRUE(button.hasFocus());

    QTest::keyPress(&button, Qt::Key_Space);
    EXPECT_DOUBLE_EQ(button.alpha(), button.pressedAlpha);
    QTest::keyRelease(&button, Qt::Key_Space);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ShownPressableButton, ShowsARingForTheKeyboardFocusOnly) {
    const QImage unfocused = pictureOf(button);

    button.setFocus(Qt::OtherFocusReason);
    ASSERT_TRUE(button.hasFocus());
    EXPECT_EQ(pictureOf(button), unfocused);

    button.setFocus(Qt::NoFocusReason);
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Tab);
    EXPECT_NE(pictureOf(button), unfocused);

    field.setFocus();
    EXPECT_EQ(pictureOf(button), unfocused);
}

TEST_F(ShownPressableButton, PaintsOnlyWhenItsStateChanges) {
    PaintCounter paints(button);
    pointerLeaves(button); // The window may have come up under the pointer.
    paints.take();

    pointerEnters(button);
    EXPECT_EQ(paints.take(), 1);
    pointerEnters(button);
    EXPECT_EQ(paints.take(), 0);
    pointerLeaves(button);
    EXPECT_EQ(paints.take(), 1);
}

TEST_F(ShownPressableButton, IsAtRestWhenShownAgain) {
    pointerEnters(button);
    QTest::mousePress(&button, Qt::LeftButton, Qt::NoModifier, inside);
    button.hide();

    EXPECT_FALSE(button.isHovered());
    EXPECT_FALSE(button.isPressed());
}

} // namespace
} // namespace tessaline
