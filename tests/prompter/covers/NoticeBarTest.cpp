#include "prompter/covers/NoticeBar.h"

#include "prompter/PrompterWindowFixture.h"
#include "prompter/controls/PressableButton.h"

#include <QAccessible>
#include <QLabel>
#include <QWheelEvent>
#include <QWindow>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

class NoticeBarTest : public PrompterWindowTest {
protected:
    NoticeBarTest() { show(u"line\n"_s.repeated(100)); }

    NoticeBar& bar() { return window().notices(); }
    QString text() { return part<QLabel>(window(), "prompter_noticeText")->text(); }
    PressableButton& button() { return *part<PressableButton>(window(), "prompter_noticeButton"); }

    void clickAt(const QWidget& widget, const QPoint& point) {
        QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {},
                          widget.mapTo(&window(), point));
    }
};

TEST_F(NoticeBarTest, IsNotThereUntilThereIsSomethingToTell) {
    EXPECT_FALSE(bar().isVisible());
}

TEST_F(NoticeBarTest, TellsALineForAWhile) {
    bar().tell(u"Something came of it"_s);
    EXPECT_TRUE(bar().isVisible());
    EXPECT_EQ(text(), u"Something came of it"_s);
    EXPECT_FALSE(button().isVisible());
    timers.advance(NoticeBar::tellingSeconds - 0.1);
    EXPECT_TRUE(bar().isVisible());
    timers.advance(0.2);
    EXPECT_FALSE(bar().isVisible());
}

TEST_F(NoticeBarTest, StaysItsTimeAnewForAnotherLine) {
    bar().tell(u"One"_s);
    timers.advance(NoticeBar::tellingSeconds - 1);
    bar().tell(u"Two"_s);
    timers.advance(2);
    EXPECT_TRUE(bar().isVisible());
    bar().tell({});
    EXPECT_FALSE(bar().isVisible());
}

TEST_F(NoticeBarTest, OffersWhatAButtonDoesOnce) {
    int pressed = 0;
    bar().offer(u"Opened talk.md"_s, u"Continue at 50 %"_s, [&] { ++pressed; });
    EXPECT_EQ(button().accessibleName(), u"Continue at 50 %"_s);
    EXPECT_TRUE(bar().rect().contains(button().geometry()));
    timers.advance(NoticeBar::tellingSeconds + 1);
    clickAt(button(), button().rect().center());
    EXPECT_EQ(pressed, 1);
    EXPECT_FALSE(bar().isVisible());
    bar().tell(u"Another"_s);
    EXPECT_FALSE(button().isVisible());
}

TEST_F(NoticeBarTest, ShortensAButtonThatLeavesTheTextTooLittleRoom) {
    const QString title = u"Continue at “"_s + u"a rather long heading "_s.repeated(5) + u"”"_s;
    bar().offer(u"Opened talk.md"_s, title, [] {});
    EXPECT_TRUE(button().text().endsWith(u'…'));
    EXPECT_EQ(button().accessibleName(), title);
    EXPECT_EQ(button().toolTip(), title);
    EXPECT_LT(button().width(), bar().width() * 2 / 3);
    bar().offer(u"Opened talk.md"_s, u"Continue at 5 %"_s, [] {});
    EXPECT_EQ(button().text(), u"Continue at 5 %"_s);
    EXPECT_EQ(button().toolTip(), QString());
}

TEST_F(NoticeBarTest, GoesAwayByAClickThatDoesNothingElse) {
    bar().offer(u"Opened talk.md"_s, u"Continue"_s, [] { ADD_FAILURE(); });
    clickAt(bar(), {3, bar().height() / 2});
    EXPECT_FALSE(bar().isVisible());
    EXPECT_EQ(window().textView().selection().caret(), 0);
}

TEST_F(NoticeBarTest, GoesAwayByEscapeAndTakesNoKeyboard) {
    bar().offer(u"Opened talk.md"_s, u"Continue"_s, [] { ADD_FAILURE(); });
    EXPECT_EQ(window().focusWidget(), &window().textView());
    QTest::keyClick(window().windowHandle(), Qt::Key_Down);
    EXPECT_TRUE(bar().isVisible());
    EXPECT_GT(window().textView().scrollPosition(), 0.0);
    QTest::keyClick(window().windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(bar().isVisible());
}

TEST_F(NoticeBarTest, LetsTheWheelMoveTheText) {
    bar().tell(u"Something"_s);
    const QPointF inside = bar().rect().center();
    QWheelEvent wheel(inside, bar().mapToGlobal(inside), {}, {0, -120}, {}, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&bar(), &wheel);
    EXPECT_GT(window().textView().scrollPosition(), 0.0);
    EXPECT_TRUE(bar().isVisible());
}

TEST_F(NoticeBarTest, LiesAtTheLowerEdgeAndNeverOverTheEyeLine) {
    ScriptView& view = window().textView();
    for (const double height : {256.0, 120.0, 100.0}) {
        settings.setHeight(height);
        window().updateFrame();
        bar().tell(u"Something"_s);
        EXPECT_EQ(bar().width(), view.width());
        EXPECT_FALSE(bar().geometry().contains(QPoint(10, int(view.eyeLine())))) << height;
        EXPECT_TRUE(view.rect().contains(bar().geometry())) << height;
    }
    settings.setHeight(256.0);
    window().updateFrame();
    EXPECT_EQ(bar().geometry().bottom(), view.rect().bottom());
}

TEST_F(NoticeBarTest, BreaksALongLineInsteadOfCuttingIt) {
    bar().tell(u"Something"_s);
    const int low = bar().height();
    bar().tell(u"Something rather long that came of it and has to be told "_s.repeated(3));
    EXPECT_GT(bar().height(), low);
    EXPECT_EQ(bar().geometry().bottom(), window().textView().rect().bottom());
}

TEST_F(NoticeBarTest, IsAnAlertForScreenReaders) {
    bar().tell(u"Something came of it"_s);
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&bar());
    ASSERT_NE(interface, nullptr);
    EXPECT_EQ(interface->role(), QAccessible::AlertMessage);
    EXPECT_EQ(interface->text(QAccessible::Name), u"Something came of it"_s);
}

} // namespace
} // namespace tessaline
