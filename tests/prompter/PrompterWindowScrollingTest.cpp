#include "prompter/PrompterWindowFixture.h"

#include <QWheelEvent>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A prompter that shows a hundred lines.
class PrompterWindowScrolling : public PrompterWindowTest {
protected:
    PrompterWindowScrolling() { show(u"line\n"_s.repeated(100)); }

    double position() { return window().textView().scrollPosition(); }

    bool linkIsStarted() { return links.living.at(0)->isStarted(); }

    /// Turns a wheel with Control held; both ways to tell how far as the system reports them.
    void turnWheel(int pixels, int angle, Qt::ScrollPhase phase) {
        QWheelEvent event({10, 10}, window().mapToGlobal(QPointF(10, 10)), {0, pixels}, {0, angle},
                          Qt::NoButton, Qt::ControlModifier, phase, false);
        QApplication::sendEvent(&window(), &event);
    }

    /// Turns a wheel by a notch over a place in the window, which finds the widget there by itself.
    void turnWheelAt(QPoint place, Qt::KeyboardModifiers modifiers) {
        QWheelEvent event(place, window().mapToGlobal(QPointF(place)), {}, {0, -120}, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        // Wheels that the program made up do not reach the widgets below.
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(window().windowHandle(), &event);
    }
};

TEST_F(PrompterWindowScrolling, StaysWithinTheText) {
    window().performScroll(50);
    EXPECT_EQ(position(), 0);
    window().performScroll(-100.5);
    EXPECT_EQ(position(), 100.5);
    window().performScroll(-1e9);
    const double end = window().textView().maximumScrollPosition();
    EXPECT_EQ(position(), end);
    window().performScroll(-50);
    EXPECT_EQ(position(), end);
}

TEST_F(PrompterWindowScrolling, GoesEightyPointsForALineOfTheWheelWithControl) {
    turnWheel(0, -120, Qt::NoScrollPhase);
    EXPECT_EQ(position(), 80);
    turnWheel(0, 120, Qt::NoScrollPhase);
    EXPECT_EQ(position(), 0);
}

TEST_F(PrompterWindowScrolling, GoesByNotchesWhereAWheelTellsPixelsToo) {
    turnWheel(-15, -120, Qt::NoScrollPhase);
    EXPECT_EQ(position(), 80);
}

TEST_F(PrompterWindowScrolling, GoesAsFarOverTheScrollerAsOverTheText) {
    const QPoint overText(200, 150);
    const QPoint overScroller(436, 150);
    ASSERT_EQ(window().childAt(overText), &window().textView());
    ASSERT_EQ(window().childAt(overScroller)->parent(), &window().textView());
    for (const auto modifiers : {Qt::NoModifier, Qt::ControlModifier}) {
        turnWheelAt(overText, modifiers);
        const double distance = position();
        EXPECT_GE(distance, 20);
        turnWheelAt(overScroller, modifiers);
        EXPECT_EQ(position(), 2 * distance);
        window().performScroll(1e9);
    }
}

TEST_F(PrompterWindowScrolling, FollowsATrackpadWithControlExactly) {
    turnWheel(-7, -15, Qt::ScrollUpdate);
    EXPECT_EQ(position(), 7);
}

TEST_F(PrompterWindowScrolling, ResumesByItselfAtTheDefaultSpeedWhenThereIsNone) {
    settings.setScrollSpeed(0);
    settings.change([](auto& values) { values.lastNonZeroScrollSpeed = 0; });
    window().toggleAutoScroll();
    EXPECT_TRUE(settings.autoScrollEnabled());
    EXPECT_EQ(settings.scrollSpeed(), 2.0);
    EXPECT_EQ(settings.lastNonZeroScrollSpeed(), 2.0);
    EXPECT_TRUE(linkIsStarted());
    const AppSettings saved(*settings.testConfigURL);
    EXPECT_TRUE(saved.autoScrollEnabled());
    EXPECT_EQ(saved.scrollSpeed(), 2.0);
    EXPECT_EQ(saved.lastNonZeroScrollSpeed(), 2.0);
}

TEST_F(PrompterWindowScrolling, ResumesByItselfAtTheLastSpeed) {
    settings.setScrollSpeed(0);
    settings.change([](auto& values) { values.lastNonZeroScrollSpeed = 3; });
    window().toggleAutoScroll();
    EXPECT_EQ(settings.scrollSpeed(), 3.0);
    EXPECT_EQ(settings.lastNonZeroScrollSpeed(), 3.0);
}

TEST_F(PrompterWindowScrolling, KeepsItsSpeedWhenItIsSwitchedOffAndOn) {
    settings.setScrollSpeed(1.5);
    settings.change([](auto& values) { values.lastNonZeroScrollSpeed = 3; });
    window().toggleAutoScroll();
    window().toggleAutoScroll();
    EXPECT_FALSE(AppSettings(*settings.testConfigURL).autoScrollEnabled());
    EXPECT_EQ(settings.scrollSpeed(), 1.5);
    window().toggleAutoScroll();
    EXPECT_EQ(settings.scrollSpeed(), 1.5);
    EXPECT_EQ(settings.lastNonZeroScrollSpeed(), 3.0);
}

TEST_F(PrompterWindowScrolling, MovesTheTextWithEveryFrameUntilItIsSwitchedOff) {
    settings.setScrollRate(ScrollRate::fast);
    settings.setScrollSpeed(2.5);
    window().toggleAutoScroll();
    for (std::uint64_t frame = 1; frame <= 10; ++frame)
        links.refresh(frame);
    queue.runAll();
    EXPECT_NEAR(position(), 1.6, 1e-9);
    window().toggleAutoScroll();
    EXPECT_FALSE(settings.autoScrollEnabled());
    EXPECT_FALSE(linkIsStarted());
    links.refresh(11);
    queue.runAll();
    EXPECT_NEAR(position(), 1.6, 1e-9);
}

TEST_F(PrompterWindowScrolling, TakesAnotherSpeedOverWhileItMoves) {
    settings.setScrollRate(ScrollRate::fast);
    settings.setScrollSpeed(2.5);
    window().toggleAutoScroll();
    settings.setScrollSpeed(5.0);
    window().updateScrollParameters();
    links.refresh(1);
    queue.runAll();
    EXPECT_NEAR(position(), 0.32, 1e-9);
}

} // namespace
} // namespace tessaline
