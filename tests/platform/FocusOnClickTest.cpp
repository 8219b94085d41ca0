#include "platform/qt/FocusOnClick.h"

#include "support/FakeWindowTraits.h"

#include <QEvent>
#include <QTest>
#include <QWindow>

#include <gmock/gmock.h>

namespace tessaline {
namespace {

class FocusOnClickTest : public ::testing::Test {
protected:
    void SetUp() override {
        window.setGeometry(0, 0, 200, 100);
        window.show();
    }

    void TearDown() override {
        if (pressed) release(inside);
    }

    void press() {
        QTest::mousePress(&window, Qt::LeftButton, {}, inside);
        pressed = true;
    }

    void release(QPoint position) {
        QTest::mouseRelease(&window, Qt::LeftButton, {}, position);
        pressed = false;
    }

    void click() {
        press();
        release(inside);
    }

    void leave() {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(&window, &event);
    }

    bool hasKeyboard() const { return traits.keyboardOwner == window.winId(); }

    static constexpr QPoint inside{50, 50};
    static constexpr QPoint outside{300, 50};

    FakeWindowTraits traits;
    QWindow window;
    FocusOnClick focusOnClick{window, traits};
    bool pressed = false;
};

TEST_F(FocusOnClickTest, LeavesTheKeyboardAloneUntilAClick) {
    EXPECT_FALSE(hasKeyboard());
}

TEST_F(FocusOnClickTest, TakesTheKeyboardOnAClickAndKeepsIt) {
    click();
    EXPECT_TRUE(hasKeyboard());
}

TEST_F(FocusOnClickTest, GivesTheKeyboardBackWhenThePointerLeaves) {
    click();
    leave();
    EXPECT_FALSE(hasKeyboard());
}

TEST_F(FocusOnClickTest, KeepsTheKeyboardWhileADragLeavesTheWindow) {
    press();
    leave();
    EXPECT_TRUE(hasKeyboard());
    release(outside);
    EXPECT_FALSE(hasKeyboard());
}

TEST_F(FocusOnClickTest, KeepsTheKeyboardWhenADragComesBack) {
    press();
    leave();
    release(inside);
    EXPECT_TRUE(hasKeyboard());
}

TEST_F(FocusOnClickTest, LeavesItsKeysToTheWindow) {
    click();
    QTest::keyClick(&window, Qt::Key_A);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_TRUE(hasKeyboard());
}

TEST_F(FocusOnClickTest, GivesTheKeyboardBackWhenTheWindowIsHidden) {
    click();
    window.hide();
    EXPECT_FALSE(hasKeyboard());
}

} // namespace
} // namespace tessaline
