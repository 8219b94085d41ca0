#include "ui/controls/PopupButton.h"

#include "appearance/SystemPalette.h"
#include "support/PointerEvents.h"
#include "support/PrintQt.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QTest>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(PopupButton, SelectsByWhatTheItemsCarry) {
    PopupButton button(u"Screen"_s, 180);
    button.addItem(u"Auto"_s, 0);
    button.addItem(u"Same"_s, 5);
    button.addItem(u"Same"_s, 6);
    EXPECT_TRUE(button.selectItemCarrying(6));
    EXPECT_EQ(button.currentIndex(), 2);
    EXPECT_FALSE(button.selectItemCarrying(7));
    EXPECT_EQ(button.currentIndex(), 2);
}

TEST(PopupButton, TellsOfChoicesByTheUserOnly) {
    PopupButton button(u"Speed"_s, 120);
    button.addItems({u"Slow"_s, u"Fast"_s});
    int choices = 0;
    QObject::connect(&button, &PopupButton::activated, [&choices] { ++choices; });
    button.setCurrentIndex(1);
    EXPECT_EQ(choices, 0);
    QTest::keyClick(&button, Qt::Key_Up);
    EXPECT_EQ(choices, 1);
    EXPECT_EQ(button.currentText(), u"Slow"_s);
}

TEST(PopupButton, IgnoresTheWheelUnlessItHasTheFocus) {
    PopupButton button(u"Speed"_s, 120);
    button.addItems({u"Slow"_s, u"Fast"_s});
    wheelDown(button);
    EXPECT_EQ(button.currentIndex(), 0);
    EXPECT_NE(button.focusPolicy(), Qt::WheelFocus) << "the wheel would bring the focus along";
}

TEST(PopupButton, ItsListIsDarkAndAsWideAsItsTitles) {
    PopupButton button(u"Screen"_s, 120);
    button.addItem(u"A display with quite a long name indeed"_s);
    button.show();
    button.showPopup();
    EXPECT_GT(button.view()->width(), 200);
    EXPECT_EQ(button.view()->palette().color(QPalette::Base), SystemPalette::controlBackground);
    EXPECT_EQ(button.view()->window()->palette().color(QPalette::Window),
              SystemPalette::windowBackground);
    button.hidePopup();
}

TEST(PopupButton, HasItsNameForScreenReaders) {
    PopupButton button(u"Screen"_s, 120);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&button);
    ASSERT_TRUE(spoken);
    EXPECT_EQ(spoken->role(), QAccessible::ComboBox);
    EXPECT_EQ(spoken->text(QAccessible::Name), u"Screen"_s);
}

} // namespace
} // namespace tessaline
