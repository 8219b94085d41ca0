#include "prompter/PrompterWindowFixture.h"

#include <QWheelEvent>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

// As Qt calls the keys on a Mac.
constexpr auto command = Qt::ControlModifier;
constexpr auto control = Qt::MetaModifier;

class KeysOfAMac : public PrompterWindowTest {
protected:
    KeysOfAMac() { show(u"line\n"_s.repeated(100)); }

    double position() { return window().textView().scrollPosition(); }

    /// One notch downwards over the text, which finds the widget there by itself.
    void turnWheel(Qt::KeyboardModifiers modifiers) {
        const QPointF place(200, 150);
        QWheelEvent event(place, window().mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(window().windowHandle(), &event);
    }

    double scrolledByNotch(Qt::KeyboardModifiers modifiers) {
        window().performScroll(1e9);
        turnWheel(modifiers);
        return position();
    }
};

TEST_F(KeysOfAMac, TheWheelWithControlGoesEightyPointsForALine) {
    EXPECT_EQ(scrolledByNotch(control), 80);
}

TEST_F(KeysOfAMac, TheWheelWithCommandGoesAsFarAsWithoutAnyKey) {
    EXPECT_EQ(scrolledByNotch(command), scrolledByNotch(Qt::NoModifier));
    EXPECT_NE(position(), 80);
}

TEST_F(KeysOfAMac, ControlLeavesTheKeysThatScrollAsTheyAre) {
    QTest::keyClick(&window().textView(), Qt::Key_End, control);
    EXPECT_GT(position(), 0);
    QTest::keyClick(&window().textView(), Qt::Key_Home, control);
    EXPECT_EQ(position(), 0);
}

TEST_F(KeysOfAMac, CommandIsNoKeyThatScrolls) {
    QTest::keyClick(&window().textView(), Qt::Key_End, command);
    EXPECT_EQ(position(), 0);
}

} // namespace
} // namespace tessaline
