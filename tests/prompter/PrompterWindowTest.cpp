#include "prompter/PrompterWindow.h"

#include "support/Part.h"
#include "support/PointerEvents.h"

#include "appearance/SystemPalette.h"
#include "controls/ElidingLabel.h"
#include "controls/IconImage.h"
#include "platform/PlatformTexts.h"
#include "prompter/ControlStrip.h"
#include "prompter/PrompterWindowFixture.h"
#include "prompter/controls/PressableButton.h"
#include "prompter/controls/TrafficLightCloseButton.h"
#include "prompter/covers/NoticeBar.h"
#include "prompter/view/ScriptView.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

TEST_F(PrompterWindowTest, HangsFromTheTopCentreOfTheScreen) {
    const int screenWidth = QApplication::primaryScreen()->size().width();
    EXPECT_EQ(window().geometry(), QRect((screenWidth - 450) / 2, 0, 450, 256));
}

TEST_F(PrompterWindowTest, FollowsTheSettings) {
    window();
    settings.setWidth(600);
    settings.setHeight(300);
    settings.setXOffset(10);
    window().updateFrame();
    const int screenWidth = QApplication::primaryScreen()->size().width();
    EXPECT_EQ(window().geometry(), QRect((screenWidth - 600) / 2 + 10, 0, 600, 300));
}

TEST_F(PrompterWindowTest, StaysWhereItIsWithoutAScreen) {
    const QRect before = window().geometry();
    screens.attached.clear();
    screens.main.reset();
    settings.setWidth(700);
    window().updateFrame();
    EXPECT_EQ(window().geometry(), before);
    EXPECT_EQ(window().menuBarHeight(), 24);
}

TEST_F(PrompterWindowTest, TellsTheDisplayLinkTheRateOfItsScreen) {
    window();
    EXPECT_EQ(links.refreshRate, 144);
}

TEST_F(PrompterWindowTest, AsksForItsTraitsWhenItIsShown) {
    EXPECT_EQ(traits.floating, std::vector<const QWidget*>{&window()});
    EXPECT_EQ(traits.excluded, std::vector<WindowTraits::NativeWindow>{window().winId()});
    EXPECT_TRUE(window().windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(window().windowFlags().testFlag(Qt::BypassWindowManagerHint));
}

TEST_F(PrompterWindowTest, FloatsForAsLongAsItIsShown) {
    window().show();
    EXPECT_EQ(traits.floating.size(), 1U);
    window().hide();
    EXPECT_TRUE(traits.floating.empty());
    window().hide();
    window().show();
    EXPECT_EQ(traits.floating.size(), 1U);
    prompter.reset();
    EXPECT_TRUE(traits.floating.empty());
}

TEST_F(PrompterWindowTest, IsPlacedOnItsScreenInEveryStepOfFolding) {
    window();
    EXPECT_EQ(traits.places.back().second, screens.attached[0]);
    traits.places.clear();
    window().toggleCollapsed();
    finishResizing(32);
    ASSERT_GT(traits.places.size(), 1U);
    for (const auto& [frame, screen] : traits.places) {
        EXPECT_EQ(frame.maxY(), screens.main->frame.maxY());
        EXPECT_EQ(screen, screens.attached[0]);
    }
    EXPECT_EQ(traits.places.back().first, window().frame());
    EXPECT_EQ(window().frame().height, 32);
}

TEST_F(PrompterWindowTest, KeepsTheTextBelowTheStripOfControls) {
    window();
    const auto* scrollArea = window().findChild<QWidget*>(u"prompter_scrollView"_s);
    ASSERT_TRUE(scrollArea);
    EXPECT_EQ(scrollArea->geometry(), QRect(10, 44, 430, 202));
    EXPECT_EQ(window().textView().geometry(), scrollArea->rect());
    EXPECT_EQ(window().menuBarHeight(), 32);
    const auto* quit = part<QAbstractButton>(window(), "prompter_quitButton");
    EXPECT_EQ(quit->geometry(), QRect(10, 10, 12, 12));
}

TEST_F(PrompterWindowTest, DirectsTheKeysToTheText) {
    EXPECT_EQ(window().focusWidget(), &window().textView());
}

TEST_F(PrompterWindowTest, CollapsesIntoTheStripAndComesBack) {
    window().toggleCollapsed();
    EXPECT_TRUE(window().isCollapsed());
    finishResizing(32);
    EXPECT_EQ(window().geometry().top(), 0);
    EXPECT_EQ(window().textView().height(), 0);
    window().toggleCollapsed();
    EXPECT_FALSE(window().isCollapsed());
    finishResizing(256);
    EXPECT_EQ(window().geometry().top(), 0);
    EXPECT_EQ(window().textView().height(), 202);
}

TEST_F(PrompterWindowTest, ExpandsToAHundredPointsAtLeast) {
    settings.setHeight(60);
    window().toggleCollapsed();
    finishResizing(32);
    window().toggleCollapsed();
    finishResizing(100);
}

TEST_F(PrompterWindowTest, KeepsItsHeightWhenItIsToggledInMidAnimation) {
    window().toggleCollapsed();
    finishResizing(32);
    window().toggleCollapsed();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window().height() > 60; }, 3000));
    window().toggleCollapsed();
    finishResizing(32);
    window().toggleCollapsed();
    finishResizing(256);
}

TEST_F(PrompterWindowTest, TakesALongTextWhileItIsHidden) {
    window().hide();
    auto hidden = std::make_unique<PrompterWindow>(settings, readingSettings, fakes.platform);
    hidden->updateText(u"line\n"_s.repeated(20000));
    queue.runAll();
    hidden->performScroll(-100);
    while (!hidden->textView().isLayoutComplete())
        QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(hidden->textView().scrollPosition(), 100);
}

TEST_F(PrompterWindowTest, KeepsTheReadersPlaceWhileCollapsed) {
    show(u"line\n"_s.repeated(100));
    window().performScroll(-400);
    window().toggleCollapsed();
    finishResizing(32);
    window().toggleCollapsed();
    finishResizing(256);
    EXPECT_EQ(window().textView().scrollPosition(), 400);
}

TEST_F(PrompterWindowTest, KeepsTheStatisticsWhileCollapsed) {
    show(u"line\n"_s.repeated(100));
    const QString before = statistics();
    const double seconds = window().reading().readingSeconds();
    window().toggleCollapsed();
    finishResizing(32);
    EXPECT_EQ(statistics(), before);
    EXPECT_EQ(window().reading().readingSeconds(), seconds);
}

TEST_F(PrompterWindowTest, CorrectsTheStatisticsOfAChangeWhileCollapsedOnceItIsExpanded) {
    show(u"line\n"_s.repeated(100));
    const QString before = statistics();
    window().toggleCollapsed();
    finishResizing(32);
    window().updateScrollParameters();
    EXPECT_NE(statistics(), before);
    window().toggleCollapsed();
    finishResizing(256);
    EXPECT_EQ(statistics(), before);
}

TEST_F(PrompterWindowTest, ShowsTextsOnlyOnceTheMainQueueComesToThem) {
    window().updateText(u"# Hello"_s);
    EXPECT_TRUE(window().textView().script().text().isEmpty());
    queue.runAll();
    EXPECT_EQ(window().textView().script().text(), u"Hello"_s);
}

TEST_F(PrompterWindowTest, IgnoresATextThatArrivesAfterItsEnd) {
    window().updateText(u"late"_s);
    prompter.reset();
    queue.runAll();
}

TEST_F(PrompterWindowTest, ShowsAHintInPlaceOfThePlaceholder) {
    show(u"PLACEHOLDER"_s);
    EXPECT_EQ(window().textView().script().text(), u"Ctrl+V\nto paste"_s);
    EXPECT_EQ(statistics(), u"1 words • ~5s"_s);
    expectHintInTheMiddle();
}

TEST_F(PrompterWindowTest, CentresTheHintAnewWhenItsHeightChanges) {
    show(u"PLACEHOLDER"_s);
    for (const double height : {600.0, 180.0, 256.0}) {
        settings.setHeight(height);
        window().updateFrame();
        expectHintInTheMiddle();
    }
}

TEST_F(PrompterWindowTest, CentresTheHintThatCameWhileItWasCollapsed) {
    window().toggleCollapsed();
    finishResizing(32);
    show(u"PLACEHOLDER"_s);
    window().toggleCollapsed();
    finishResizing(256);
    expectHintInTheMiddle();
}

TEST_F(PrompterWindowTest, KeepsTheHintWhenALongTextBeforeItIsRenderedTooLate) {
    window().updateText(QString(ContentRenderer::mostRenderedAtOnce + 1, u'a'));
    queue.runAll();
    ASSERT_EQ(tasks.pending(), 1u);
    window().updateText(u"PLACEHOLDER"_s);
    queue.runAll();
    tasks.runAll();
    queue.runAll();
    EXPECT_EQ(window().textView().script().text(), u"Ctrl+V\nto paste"_s);
}

TEST_F(PrompterWindowTest, RerendersWithTheFontSizeOfTheSettings) {
    show(u"# Hello\nyou"_s);
    settings.setFontSize(30);
    window().rerender();
    const auto& view = window().textView();
    EXPECT_EQ(view.sizeOf(*view.script().attributes(0)->font), 40);
}

TEST_F(PrompterWindowTest, RerendersNothingBeforeTheFirstText) {
    window().rerender();
    EXPECT_TRUE(window().textView().script().text().isEmpty());
    EXPECT_TRUE(statistics().isEmpty());
}

TEST_F(PrompterWindowTest, RerendersThePlaceholderAsItsHint) {
    show(u"PLACEHOLDER"_s);
    settings.setFontSize(30);
    window().rerender();
    EXPECT_EQ(window().textView().script().text(), u"Ctrl+V\nto paste"_s);
    EXPECT_EQ(statistics(), u"1 words • ~5s"_s);
}

TEST_F(PrompterWindowTest, KeepsThePlaceWhenAnEditedTextArrives) {
    const QString text = u"line\n"_s.repeated(100);
    show(text);
    window().performScroll(-400);
    show(text + u"one more"_s);
    EXPECT_EQ(window().textView().scrollPosition(), 400);
    show(u"all gone"_s);
    EXPECT_EQ(window().textView().scrollPosition(), 0);
}

TEST_F(PrompterWindowTest, TakesTheKeyboardWhenItIsBroughtToTheFront) {
    window().makeKeyAndOrderFront();
    EXPECT_EQ(traits.keyboardOwner, window().winId());
    window().hide();
    EXPECT_FALSE(traits.keyboardOwner);
}

TEST_F(PrompterWindowTest, ChangesItsShapeWhenTranslucencyComesOrGoes) {
    ASSERT_TRUE(window().mask().isEmpty());
    traits.translucency = false;
    traits.translucencyChanged();
    EXPECT_FALSE(window().mask().isEmpty());
    traits.translucency = true;
    traits.translucencyChanged();
    EXPECT_TRUE(window().mask().isEmpty());
    prompter.reset();
    traits.translucencyChanged();
}

TEST_F(PrompterWindowTest, IsCutToItsShapeWhereNothingIsTranslucent) {
    EXPECT_TRUE(window().mask().isEmpty());
    traits.translucency = false;
    window().updateFrame();
    EXPECT_TRUE(window().mask().contains(QPoint(0, 0)));
    EXPECT_TRUE(window().mask().contains(QPoint(225, 255)));
    EXPECT_FALSE(window().mask().contains(QPoint(0, 255)));
    EXPECT_FALSE(window().mask().contains(QPoint(449, 255)));
    traits.translucency = true;
    window().updateFrame();
    EXPECT_TRUE(window().mask().isEmpty());
}

TEST_F(PrompterWindowTest, IsSquareAtTheTopAndRoundAtTheBottom) {
    const QImage picture = window().grab().toImage();
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 255);
    EXPECT_EQ(picture.pixelColor(449, 0).alpha(), 255);
    EXPECT_EQ(picture.pixelColor(0, 255).alpha(), 0);
    EXPECT_EQ(picture.pixelColor(449, 255).alpha(), 0);
    EXPECT_EQ(picture.pixelColor(225, 255), QColor(Qt::black));
    for (int x = 0; x < 16; ++x) {
        EXPECT_NEAR(picture.pixelColor(x, 252).alpha(), picture.pixelColor(449 - x, 252).alpha(),
                    4);
    }
    // A circle of sixteen points crosses the lowest row in its middle, twelve points from the side.
    EXPECT_LT(picture.pixelColor(11, 255).alpha(), 128);
    EXPECT_GT(picture.pixelColor(12, 255).alpha(), 128);
}

TEST_F(PrompterWindowTest, GivesTheKeyboardBackOnEscapeOnly) {
    show(u"one\ntwo"_s);
    traits.takeKeyboard(window().winId());
    QTest::keyClick(window().windowHandle(), Qt::Key_A);
    EXPECT_EQ(traits.keyboardOwner, window().winId());
    QTest::keyClick(window().windowHandle(), Qt::Key_Escape);
    EXPECT_NE(traits.keyboardOwner, window().winId());
}

TEST_F(PrompterWindowTest, SaysOnceWhatDrivesItWhereAClickBringsNoKeyboard) {
    show(u"one\ntwo"_s);
    traits.keyboardRefused();
    EXPECT_FALSE(window().notices().isVisible()) << "nobody clicked";
    pointerEnters(window());
    traits.keyboardRefused();
    EXPECT_TRUE(window().notices().isVisible());
    EXPECT_EQ(part<QLabel>(window(), "prompter_noticeText")->text(),
              platformTexts().keyboardRefused);
    window().notices().dismiss();
    traits.keyboardRefused();
    EXPECT_FALSE(window().notices().isVisible());
}

} // namespace
} // namespace tessaline
