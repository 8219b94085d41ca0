#include "prompter/PrompterWindowFixture.h"
#include "prompter/covers/CountdownView.h"
#include "support/WidgetPicture.h"

#include <QAccessible>
#include <QAction>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <memory>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A prompter that shows a hundred lines and counts three seconds down.
class PrompterWindowCountdown : public PrompterWindowTest {
protected:
    PrompterWindowCountdown() {
        setSeconds(3);
        show(u"line\n"_s.repeated(100));
    }

    void setSeconds(double seconds) {
        readingSettings.change([=](ReadingOptions& values) { values.countdownSeconds = seconds; });
    }

    void countTo(int left) {
        window().toggleAutoScroll();
        timers.advance(3 - left + 0.01);
    }

    CountdownView& countdown() { return *part<CountdownView>(window(), "prompter_countdown"); }
    bool counts() { return countdown().isVisible(); }
    bool moves() { return links.living.at(0)->isStarted(); }

    /// As the window gets them from the system.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyPress(window().windowHandle(), key, modifiers);
    }
    void release(Qt::Key key) { QTest::keyRelease(window().windowHandle(), key); }
    void click(const QWidget& widget) {
        const QPoint place = widget.mapTo(&window(), widget.rect().center());
        QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, place);
    }
    void repeat(Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, {}, {}, true);
        QApplication::sendEvent(window().windowHandle(), &event);
    }

    double position() { return window().textView().scrollPosition(); }
};

TEST_F(PrompterWindowCountdown, IsThereBeforeTheTextMoves) {
    window().toggleAutoScroll();
    EXPECT_TRUE(settings.autoScrollEnabled());
    EXPECT_TRUE(counts());
    timers.advance(2.9);
    EXPECT_TRUE(counts());
    EXPECT_FALSE(moves());
    timers.advance(0.2);
    EXPECT_FALSE(counts());
    EXPECT_TRUE(moves());
    window().toggleAutoScroll();
    EXPECT_FALSE(moves());
    EXPECT_FALSE(counts());
}

TEST_F(PrompterWindowCountdown, IsNotThereUnlessTheReaderWantsIt) {
    setSeconds(0);
    window().toggleAutoScroll();
    EXPECT_FALSE(counts());
    EXPECT_TRUE(moves());
}

TEST_F(PrompterWindowCountdown, ShowsLargeDigitsInTheMiddleOfTheText) {
    QImage last;
    for (const int left : {3, 2, 1}) {
        countTo(left);
        const QImage shown = pictureOf(countdown());
        const QRectF digit =
            boundsOf(shown, [&](int x, int y) { return qGray(shown.pixel(x, y)) > 100; });
        const QRectF area = countdown().rect();
        EXPECT_EQ(area.size(), QSizeF(window().textView().size()));
        EXPECT_NEAR(digit.height(), area.height() / 2, area.height() / 20);
        EXPECT_NEAR(digit.center().y(), area.center().y(), 2);
        EXPECT_NEAR(digit.center().x(), area.center().x(), 2);
        EXPECT_NE(shown, last);
        last = shown;
        window().toggleAutoScroll();
    }
}

TEST_F(PrompterWindowCountdown, HidesWhatItCoversFromNobodyElse) {
    const QImage before = window().textView().grab().toImage();
    countTo(1);
    timers.advance(2);
    window().toggleAutoScroll();
    EXPECT_EQ(window().textView().grab().toImage(), before);
}

TEST_F(PrompterWindowCountdown, IsCancelledByAKeyThatDoesNothingElse) {
    countTo(2);
    press(Qt::Key_Down);
    EXPECT_FALSE(counts());
    EXPECT_FALSE(settings.autoScrollEnabled());
    EXPECT_FALSE(AppSettings(*settings.testConfigURL).autoScrollEnabled());
    repeat(Qt::Key_Down);
    EXPECT_EQ(position(), 0) << "while it is held";
    release(Qt::Key_Down);
    timers.advance(10);
    EXPECT_FALSE(moves());
    press(Qt::Key_Down);
    EXPECT_EQ(position(), 20) << "the next one does what it always does";
}

TEST_F(PrompterWindowCountdown, IsCancelledByAKeyOfAMenu) {
    bool done = false;
    QAction action;
    action.setShortcut(QKeySequence(u"Ctrl+J"_s));
    QObject::connect(&action, &QAction::triggered, [&] { done = true; });
    window().addAction(&action);
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    press(Qt::Key_J, Qt::ControlModifier);
    ASSERT_TRUE(std::exchange(done, false)) << "it works without a countdown";
    release(Qt::Key_J);
    countTo(2);
    press(Qt::Key_J, Qt::ControlModifier);
    EXPECT_FALSE(counts());
    EXPECT_FALSE(done);
}

TEST_F(PrompterWindowCountdown, IsCancelledByAClickThatDoesNothingElse) {
    int pressed = 0;
    auto& button = *part<QWidget>(window(), "prompter_minimizeButton");
    QObject::connect(&window().controls(), &ControlStrip::minimizePressed, [&] { ++pressed; });
    countTo(2);
    click(button);
    EXPECT_FALSE(counts());
    EXPECT_FALSE(settings.autoScrollEnabled());
    EXPECT_EQ(pressed, 0);
    click(button);
    EXPECT_EQ(pressed, 1);

    countTo(2);
    click(window().textView());
    EXPECT_FALSE(counts());
    EXPECT_FALSE(settings.autoScrollEnabled());
}

TEST_F(PrompterWindowCountdown, IsNotCancelledByModifiersNorByTheKeyThatBeganIt) {
    window().toggleAutoScroll();
    press(Qt::Key_Shift);
    release(Qt::Key_Shift);
    repeat(Qt::Key_T);
    release(Qt::Key_T);
    EXPECT_TRUE(counts());
    timers.advance(3.1);
    EXPECT_TRUE(moves());
}

TEST_F(PrompterWindowCountdown, LetsTheWheelMoveTheTextMeanwhile) {
    countTo(2);
    QWheelEvent event({100, 100}, window().mapToGlobal(QPointF(100, 100)), {}, {0, -120},
                      Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window().windowHandle(), &event);
    EXPECT_GT(position(), 0);
    EXPECT_TRUE(counts());
}

TEST_F(PrompterWindowCountdown, IsCancelledByAutoScrollBeingSwitchedOff) {
    countTo(1);
    window().toggleAutoScroll();
    EXPECT_FALSE(counts());
    timers.advance(10);
    EXPECT_FALSE(moves());
}

TEST_F(PrompterWindowCountdown, BeginsAnewOnceTheTextIsSeenAgain) {
    for (const bool folds : {false, true}) {
        countTo(1);
        folds ? window().toggleCollapsed() : window().hide();
        timers.advance(10);
        EXPECT_FALSE(moves()) << folds;
        EXPECT_TRUE(settings.autoScrollEnabled()) << folds;
        folds ? window().toggleCollapsed() : window().show();
        EXPECT_TRUE(counts()) << folds;
        timers.advance(2.9);
        EXPECT_FALSE(moves()) << folds;
        timers.advance(0.2);
        EXPECT_TRUE(moves()) << folds;
        window().toggleAutoScroll();
    }
}

TEST_F(PrompterWindowCountdown, IsThereAtTheStartOfTheProgram) {
    settings.setAutoScrollEnabled(true);
    prompter = std::make_unique<PrompterWindow>(settings, readingSettings, fakes.platform);
    const auto* link = links.living.back();
    EXPECT_FALSE(link->isStarted());
    timers.advance(10);
    EXPECT_FALSE(link->isStarted()) << "nobody sees it yet";
    prompter->show();
    timers.advance(2.9);
    EXPECT_FALSE(link->isStarted());
    timers.advance(0.2);
    EXPECT_TRUE(link->isStarted());
}

TEST_F(PrompterWindowCountdown, IsAnAlertToScreenReadersWithOneMessage) {
    window().toggleAutoScroll();
    auto* alert = QAccessible::queryAccessibleInterface(&countdown());
    EXPECT_EQ(alert->role(), QAccessible::AlertMessage);
    for (int second = 0; second < 3; ++second) {
        EXPECT_FALSE(alert->state().invisible);
        EXPECT_EQ(alert->text(QAccessible::Name), u"The text starts to move in 3 s"_s);
        EXPECT_EQ(alert->text(QAccessible::Description), u"Any key or click cancels"_s);
        timers.advance(1.0);
    }
    EXPECT_TRUE(alert->state().invisible);
}

} // namespace
} // namespace tessaline
