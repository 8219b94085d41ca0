#include "ui/controls/Switch.h"

#include "appearance/SystemPalette.h"
#include "support/PrintQt.h"
#include "support/WidgetPicture.h"

#include <QAbstractAnimation>
#include <QAccessible>
#include <QTest>

#include <gmock/gmock.h>

#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(Switch, IsACheckBoxWithItsStateForScreenReaders) {
    Switch control(u"Obsidian"_s);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&control);
    ASSERT_TRUE(spoken);
    EXPECT_EQ(spoken->role(), QAccessible::CheckBox);
    EXPECT_EQ(spoken->text(QAccessible::Name), u"Obsidian"_s);
    EXPECT_TRUE(spoken->state().checkable);
    EXPECT_FALSE(spoken->state().checked);
    control.setChecked(true);
    EXPECT_TRUE(spoken->state().checked);
    spoken->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_FALSE(control.isChecked());
}

TEST(Switch, IsDrawnWithoutADarkRim) {
    Switch control(u"Obsidian"_s);
    control.resize(control.sizeHint());
    const QImage picture = pictureOf(control, 4);
    EXPECT_FALSE(inkOf(picture).isEmpty());
    EXPECT_TRUE(boundsOf(picture, [&](int x, int y) {
                    const QColor color = picture.pixelColor(x, y);
                    return color.alpha() == 255 && color.lightness() < 60;
                }).isEmpty());
}

TEST(Switch, SwitchesOnAClickAnywhereAndOnSpace) {
    Switch control(u"Obsidian"_s);
    control.resize(control.sizeHint());
    QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(1, 1));
    EXPECT_TRUE(control.isChecked());
    QTest::keyClick(&control, Qt::Key_Space);
    EXPECT_FALSE(control.isChecked());
}

TEST(Switch, LeavesReturnToTheWindow) {
    Switch control(u"Obsidian"_s);
    QTest::keyClick(&control, Qt::Key_Return);
    QTest::keyClick(&control, Qt::Key_Enter);
    EXPECT_FALSE(control.isChecked());
}

TEST(Switch, TellsChangesByTheUserApartFromOthers) {
    Switch control(u"Obsidian"_s);
    int clicks = 0;
    QObject::connect(&control, &Switch::clicked, [&clicks] { ++clicks; });
    control.setChecked(true);
    EXPECT_EQ(clicks, 0);
    QTest::mouseClick(&control, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST(Switch, TakesAScreenReadersActionForTheUsers) {
    Switch control(u"Obsidian"_s);
    std::vector<bool> clicks;
    QObject::connect(&control, &Switch::clicked, [&clicks](bool on) { clicks.push_back(on); });
    QAccessibleActionInterface* actions =
        QAccessible::queryAccessibleInterface(&control)->actionInterface();
    ASSERT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    actions->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_THAT(clicks, testing::ElementsAre(true));
    EXPECT_TRUE(control.isChecked());

    control.setEnabled(false);
    EXPECT_FALSE(actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    actions->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(control.isChecked());
}

/// Where the white knob is, as a share of the switch's width.
double knobPlace(Switch& control) {
    const QImage drawn = control.grab().toImage();
    double sum = 0.0;
    int count = 0;
    for (int x = 0; x < drawn.width(); ++x) {
        if (drawn.pixelColor(x, drawn.height() / 2) != SystemPalette::white) continue;
        sum += x;
        ++count;
    }
    return count > 0 ? sum / count / drawn.width() : -1.0;
}

TEST(Switch, DrawsItsKnobAtTheEndThatReadsAsOn) {
    Switch control(u"Obsidian"_s);
    control.resize(control.sizeHint());
    EXPECT_LT(knobPlace(control), 0.4);
    control.setChecked(true);
    EXPECT_GT(knobPlace(control), 0.6);
    control.setLayoutDirection(Qt::RightToLeft);
    EXPECT_LT(knobPlace(control), 0.4);
}

TEST(Switch, SlidesToTheNewStateWhileItIsSeen) {
    Switch control(u"Obsidian"_s);
    control.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&control));
    control.setChecked(true);
    EXPECT_TRUE(QTest::qWaitFor([&control] { return knobPlace(control) > 0.6; }, 3000));
}

TEST(Switch, SlidesToWhereItWouldBeWithoutSliding) {
    Switch control(u"Obsidian"_s);
    control.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&control));
    Switch unseen(u"Obsidian"_s);
    unseen.resize(control.size());
    for (const bool on : {true, false}) {
        control.setChecked(on);
        unseen.setChecked(on);
        auto* slide = control.findChild<QAbstractAnimation*>();
        ASSERT_TRUE(slide);
        slide->setCurrentTime(slide->totalDuration());
        EXPECT_DOUBLE_EQ(knobPlace(control), knobPlace(unseen));
    }
}

TEST(Switch, LooksFaintWhenItCannotBeUsed) {
    Switch control(u"Clipboard"_s);
    control.resize(control.sizeHint());
    control.setEnabled(false);
    EXPECT_LT(knobPlace(control), 0.0);
}

} // namespace
} // namespace tessaline
