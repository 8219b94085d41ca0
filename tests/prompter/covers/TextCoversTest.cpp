#include "prompter/covers/TextCovers.h"
#include "prompter/PrompterWindowFixture.h"
#include "prompter/covers/BlackCover.h"
#include "prompter/covers/CountdownView.h"
#include "prompter/covers/NoticeBar.h"
#include "support/WidgetPicture.h"

#include <QAccessible>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A prompter that shows a hundred lines.
class TextCoversTest : public PrompterWindowTest {
protected:
    TextCoversTest() { show(u"line\n"_s.repeated(100)); }

    TextCovers& covers() { return window().covers(); }
    BlackCover& black() { return *part<BlackCover>(window(), "prompter_black"); }
    bool moves() { return !links.living.empty() && links.living.at(0)->isStarted(); }

    /// Where the text is, in the window's coordinates.
    QRect textArea() {
        const auto& view = window().textView();
        return {view.mapTo(&window(), QPoint()), view.size()};
    }

    int brightest(const QRect& area) {
        const QImage picture = window().grab(area).toImage();
        int most = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                most = std::max(most, qGray(picture.pixel(x, y)));
        }
        return most;
    }
};

TEST_F(TextCoversTest, BlackLeavesNothingOfTheTextAndAllOfTheStrip) {
    const QRect text = textArea();
    const QRect strip(0, 0, window().width(), 24);
    const QImage stripBefore = window().grab(strip).toImage();
    ASSERT_GT(brightest(text), 100);
    covers().setBlack(true);
    EXPECT_TRUE(covers().isBlack());
    EXPECT_EQ(brightest(text), 0);
    EXPECT_EQ(window().grab(strip).toImage(), stripBefore);
    covers().setBlack(false);
    EXPECT_GT(brightest(text), 100);
}

TEST_F(TextCoversTest, BlackCoversTheTextAtEverySize) {
    covers().setBlack(true);
    settings.setHeight(400);
    settings.setWidth(600);
    window().updateFrame();
    EXPECT_EQ(brightest(textArea()), 0);
    show(u"# Another text"_s);
    EXPECT_EQ(brightest(textArea()), 0) << "another text brings nothing back";
}

TEST_F(TextCoversTest, BlackCoversANoticeThatIsUp) {
    window().notices().tell(u"Something came of it"_s);
    covers().setBlack(true);
    EXPECT_EQ(brightest(textArea()), 0);
}

TEST_F(TextCoversTest, TheTextStandsWhileItIsBlackedOut) {
    window().toggleAutoScroll();
    ASSERT_TRUE(moves());
    covers().setBlack(true);
    EXPECT_FALSE(moves());
    EXPECT_TRUE(settings.autoScrollEnabled()) << "auto-scroll stays on";
    covers().setBlack(false);
    EXPECT_TRUE(moves());
    covers().setBlack(true);
    window().toggleAutoScroll();
    covers().setBlack(false);
    EXPECT_FALSE(moves()) << "it was switched off meanwhile";
}

TEST_F(TextCoversTest, AClickOnTheBlackBringsTheTextBackAndDoesNothingElse) {
    covers().setBlack(true);
    QTest::mouseClick(&black(), Qt::LeftButton);
    EXPECT_FALSE(covers().isBlack());
    EXPECT_TRUE(window().textView().selection().range().isEmpty());
}

TEST_F(TextCoversTest, BlackLiesOverTheCountdownWhichGoesOn) {
    readingSettings.change([](ReadingOptions& options) { options.countdownSeconds = 3; });
    window().toggleAutoScroll();
    covers().setBlack(true);
    EXPECT_EQ(brightest(textArea()), 0);
    timers.advance(3.1);
    EXPECT_FALSE(moves());
    covers().setBlack(false);
    EXPECT_TRUE(moves());
}

TEST_F(TextCoversTest, ScreenReadersAreToldOfTheBlack) {
    QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&black());
    ASSERT_TRUE(heard);
    EXPECT_EQ(heard->role(), QAccessible::AlertMessage);
    EXPECT_EQ(heard->text(QAccessible::Name), u"The text is blacked out"_s);
    EXPECT_NE(heard->text(QAccessible::Description), QString());
}

TEST_F(TextCoversTest, TheStatusTellsWhatLiesOverTheText) {
    EXPECT_FALSE(window().status().black);
    EXPECT_FALSE(window().status().keys);
    covers().setBlack(true);
    covers().setShowsKeys(true);
    EXPECT_TRUE(window().status().black);
    EXPECT_TRUE(window().status().keys);
}

} // namespace
} // namespace tessaline
