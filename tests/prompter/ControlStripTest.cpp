#include "prompter/ControlStrip.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "prompter/controls/PressableButton.h"
#include "prompter/controls/TrafficLightCloseButton.h"
#include "support/Part.h"
#include "support/WidgetPicture.h"

#include <QAbstractButton>
#include <QLabel>

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <utility>
#include <vector>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

class ControlStripTest : public testing::Test {
protected:
    ControlStripTest() { strip.resize(450, 44); }

    QColor sourceLabelColor() const {
        return part<QLabel>(strip, "prompter_sourceLabel")->palette().color(QPalette::WindowText);
    }

    ControlStrip strip;
};

void expectGlyph(const PressableButton& button, const QString& glyph, double points,
                 QFont::Weight weight) {
    EXPECT_EQ(button.text(), glyph);
    EXPECT_NEAR(pointsOf(button.font()), points, 0.01) << glyph.toStdString();
    EXPECT_EQ(button.font().weight(), weight) << glyph.toStdString();
}

TEST_F(ControlStripTest, StartsWithTheGlyphsInTheirSizes) {
    expectGlyph(*part<PressableButton>(strip, "prompter_minimizeButton"), u"—"_s, 12,
                QFont::Normal);
    expectGlyph(*part<PressableButton>(strip, "prompter_configButton"), u"⚙\uFE0E"_s, 16,
                QFont::Normal);
    expectGlyph(*part<PressableButton>(strip, "prompter_autoScrollButton"), u"⏯"_s, 16,
                QFont::Normal);
}

TEST_F(ControlStripTest, StartsInFileModeWithoutASourceIcon) {
    EXPECT_EQ(part<QLabel>(strip, "prompter_sourceLabel")->text(), u"FILE"_s);
    EXPECT_EQ(sourceLabelColor(), SystemPalette::blue);
    expectGlyph(*part<PressableButton>(strip, "prompter_pasteButton"), u"📋"_s, 14, QFont::Normal);
    EXPECT_TRUE(part<QLabel>(strip, "prompter_sourceIconView")->isHidden());
}

TEST_F(ControlStripTest, ShowsClipboardMode) {
    strip.showSourceMode(SourceMode::clipboard);
    EXPECT_EQ(part<QLabel>(strip, "prompter_sourceLabel")->text(), u"CLIP"_s);
    EXPECT_EQ(sourceLabelColor(), SystemPalette::orange);
    expectGlyph(*part<PressableButton>(strip, "prompter_pasteButton"), u"📄"_s, 14, QFont::Normal);
}

TEST_F(ControlStripTest, TellsTheClipboardFromTheOtherSourcesByThePage) {
    strip.showSource(SourceType::clipboard);
    expectGlyph(*part<PressableButton>(strip, "prompter_pasteButton"), u"📄"_s, 14, QFont::Normal);
    strip.showSource(SourceType::obsidian);
    expectGlyph(*part<PressableButton>(strip, "prompter_pasteButton"), u"📋"_s, 14, QFont::Normal);
}

TEST_F(ControlStripTest, DrawsTheSquareLighterThanTheDash) {
    strip.showCollapsed(true);
    expectGlyph(*part<PressableButton>(strip, "prompter_minimizeButton"), u"□"_s, 14,
                QFont::DemiBold);
    strip.showCollapsed(false);
    expectGlyph(*part<PressableButton>(strip, "prompter_minimizeButton"), u"—"_s, 14, QFont::Bold);
}

TEST_F(ControlStripTest, SetsItsLabelsSmall) {
    EXPECT_NEAR(pointsOf(part<QLabel>(strip, "prompter_sourceLabel")->font()), 9, 0.01);
    EXPECT_EQ(part<QLabel>(strip, "prompter_sourceLabel")->font().weight(), QFont::Bold);
    EXPECT_EQ(part<QLabel>(strip, "prompter_sourceLabel")->alignment(), Qt::AlignCenter);
    EXPECT_NEAR(pointsOf(part<QLabel>(strip, "prompter_statsLabel")->font()), 11, 0.01);
    EXPECT_EQ(part<QLabel>(strip, "prompter_statsLabel")->font().weight(), QFont::Medium);
}

TEST_F(ControlStripTest, CentresTheCloseButtonInTheStrip) {
    for (const auto& [height, top] : {std::pair{24.0, 6}, {32.0, 10}, {38.0, 13}}) {
        strip.setStripHeight(height);
        EXPECT_EQ(part<QAbstractButton>(strip, "prompter_quitButton")->geometry(),
                  QRect(10, top, 12, 12))
            << height;
    }
}

TEST_F(ControlStripTest, LinesTheOthersUpWithTheCloseButtonSideBySide) {
    strip.setStripHeight(32);
    strip.showSource(SourceType::obsidian);
    const std::vector<QWidget*> controls{part<QAbstractButton>(strip, "prompter_quitButton"),
                                         part<QAbstractButton>(strip, "prompter_minimizeButton"),
                                         part<QAbstractButton>(strip, "prompter_configButton"),
                                         part<QAbstractButton>(strip, "prompter_autoScrollButton"),
                                         part<QLabel>(strip, "prompter_sourceIconView"),
                                         part<QLabel>(strip, "prompter_sourceLabel"),
                                         part<QAbstractButton>(strip, "prompter_pasteButton"),
                                         part<QLabel>(strip, "prompter_statsLabel")};
    const QRectF closeButton = part<QAbstractButton>(strip, "prompter_quitButton")->geometry();
    for (std::size_t i = 1; i < controls.size(); ++i) {
        const QRectF geometry = controls[i]->geometry();
        EXPECT_NEAR(geometry.center().y(), closeButton.center().y(), 0.5) << i;
        const double space = geometry.left() - QRectF(controls[i - 1]->geometry()).right();
        EXPECT_GE(space, 2) << i;
        EXPECT_LE(space, 4) << i;
    }
    EXPECT_EQ(QRectF(part<QLabel>(strip, "prompter_statsLabel")->geometry()).right(), 440);
}

TEST_F(ControlStripTest, KeepsItsPlacesWhenTheSourceOrTheFoldingChanges) {
    strip.showSource(SourceType::obsidian);
    const auto places = [&] {
        std::vector<QRect> found;
        for (const QWidget* control : std::initializer_list<QWidget*>{
                 part<QAbstractButton>(strip, "prompter_quitButton"),
                 part<QAbstractButton>(strip, "prompter_minimizeButton"),
                 part<QAbstractButton>(strip, "prompter_configButton"),
                 part<QAbstractButton>(strip, "prompter_autoScrollButton"),
                 part<QLabel>(strip, "prompter_sourceIconView"),
                 part<QLabel>(strip, "prompter_sourceLabel"),
                 part<QAbstractButton>(strip, "prompter_pasteButton"),
                 part<QLabel>(strip, "prompter_statsLabel")})
            found.push_back(control->geometry());
        return found;
    };
    const auto before = places();
    strip.showSource(SourceType::clipboard);
    EXPECT_EQ(places(), before);
    strip.showCollapsed(true);
    EXPECT_EQ(places(), before);
    strip.showCollapsed(false);
    EXPECT_EQ(places(), before);
    EXPECT_GE(part<QAbstractButton>(strip, "prompter_minimizeButton")->width(),
              part<QAbstractButton>(strip, "prompter_minimizeButton")->sizeHint().width());
    EXPECT_GE(part<QAbstractButton>(strip, "prompter_minimizeButton")->height(),
              part<QAbstractButton>(strip, "prompter_minimizeButton")->sizeHint().height());
}

TEST_F(ControlStripTest, SetsTheStatisticsInTheirColorAtTheRight) {
    strip.setStripHeight(32);
    strip.showStatistics(u"1 words"_s, SystemPalette::red);
    QLabel& label = *part<QLabel>(strip, "prompter_statsLabel");
    const QImage picture = pictureOf(label, 4);
    const QRectF ink = inkOf(picture);
    EXPECT_NEAR(ink.right(), label.width(), 2);
    EXPECT_GT(ink.left(), label.width() / 2.0);
    const QRectF red = boundsOf(
        picture, [&](int x, int y) { return picture.pixelColor(x, y) == SystemPalette::red; });
    EXPECT_FALSE(red.isEmpty());
}

} // namespace
} // namespace tessaline
