#include "app/MediaSession.h"
#include "AppDelegateFixture.h"
#include "app/SettingChoices.h"
#include "prompter/PrompterWindow.h"
#include "prompter/view/ScriptView.h"
#include "settings/ReadingSettings.h"
#include "support/FakeMediaControls.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;
using Deed = MediaControls::Wish::Deed;

namespace {

/// The running program with a script of three headings.
class MediaSessionTest : public AppDelegateFixture {
protected:
    MediaSessionTest() {
        configure([](PersistedSettings& saved) {
            saved.hasCompletedOnboarding = true;
            saved.scrollSpeed = 2;
        });
        launch();
        open(u"intro\n# The talk\n"_s + u"a line of words\n"_s.repeated(60) + u"## Two\n"_s +
             u"a line of words\n"_s.repeated(60));
    }

    void open(const QString& text) {
        delegate->scripts().open(text);
        mainQueue.runAll();
        view().completeLayout();
    }

    void choose(const std::function<void(ReadingOptions&)>& edit) {
        delegate->reading().change(edit);
    }
    void switchOn() {
        choose([](ReadingOptions& options) { options.mediaKeys = true; });
    }
    void setPace(PaceMode pace) {
        choose([=](ReadingOptions& options) { options.pace = pace; });
    }

    ScriptView& view() { return delegate->prompter().textView(); }
    const AppSettings& settings() { return delegate->currentSettings(); }
    const MediaControls::Playing& shown() { return media.shown.value(); }
};

TEST_F(MediaSessionTest, IsNotThereUntilTheUserWantsIt) {
    timers.advance(3);
    EXPECT_FALSE(media.shown);
    switchOn();
    EXPECT_TRUE(media.shown);
    choose([](ReadingOptions& options) { options.mediaKeys = false; });
    EXPECT_FALSE(media.shown);
}

TEST_F(MediaSessionTest, IsThereWhileAScriptCanBeSeen) {
    switchOn();
    delegate->hidePrompterWindow();
    timers.advance(1.1);
    EXPECT_FALSE(media.shown);
    delegate->showPrompterWindow();
    timers.advance(1.1);
    EXPECT_TRUE(media.shown);
}

TEST_F(MediaSessionTest, TellsTheFirstHeadingAndWhetherTheTextMoves) {
    switchOn();
    EXPECT_EQ(shown().title, u"The talk"_s);
    EXPECT_FALSE(shown().moves);
    delegate->toggleScroll();
    EXPECT_TRUE(shown().moves);
    open(u"no heading at all"_s);
    timers.advance(1.1);
    EXPECT_EQ(shown().title, u"Script"_s);
}

TEST_F(MediaSessionTest, TellsNothingTwice) {
    switchOn();
    const int times = media.timesShown;
    timers.advance(5);
    EXPECT_EQ(media.timesShown, times);
}

TEST_F(MediaSessionTest, StartsAndStopsAsTheButtonDoes) {
    switchOn();
    media.press(Deed::play);
    media.press(Deed::play);
    EXPECT_TRUE(settings().autoScrollEnabled());
    media.press(Deed::pause);
    EXPECT_FALSE(settings().autoScrollEnabled());
    media.press(Deed::playOrPause);
    EXPECT_TRUE(settings().autoScrollEnabled());
    view().scrollTo(200);
    media.press(Deed::stop);
    EXPECT_FALSE(settings().autoScrollEnabled());
    EXPECT_EQ(view().scrollPosition(), 0) << "the next start is from the beginning";
}

TEST_F(MediaSessionTest, HasHeadingsForChapters) {
    switchOn();
    media.press(Deed::next);
    const double first = view().scrollPosition();
    EXPECT_GT(first, 0);
    media.press(Deed::next);
    EXPECT_GT(view().scrollPosition(), first);
    media.press(Deed::previous);
    EXPECT_DOUBLE_EQ(view().scrollPosition(), first);
}

TEST_F(MediaSessionTest, TheRateIsTheSpeed) {
    switchOn();
    EXPECT_DOUBLE_EQ(shown().rate, 1);
    EXPECT_DOUBLE_EQ(shown().mostRate, 2.5);
    media.press(Deed::setRate, 1.5);
    EXPECT_DOUBLE_EQ(settings().scrollSpeed(), 3);
    EXPECT_DOUBLE_EQ(shown().rate, 1.5);
    delegate->choices().setScrollSpeed(0);
    EXPECT_DOUBLE_EQ(shown().rate, 1.5) << "what it will be, as a rate of 0 means nothing";
}

TEST_F(MediaSessionTest, TheRateIsTheWordsAMinute) {
    switchOn();
    setPace(PaceMode::words);
    EXPECT_DOUBLE_EQ(shown().rate, 1);
    EXPECT_DOUBLE_EQ(shown().leastRate, 0.4);
    EXPECT_DOUBLE_EQ(shown().mostRate, 2);
    media.press(Deed::setRate, 1.2);
    EXPECT_EQ(delegate->reading().values().wordsPerMinute, 180);
    EXPECT_DOUBLE_EQ(shown().rate, 1.2);
}

TEST_F(MediaSessionTest, APromisedEndHasNoOtherRate) {
    switchOn();
    setPace(PaceMode::finish);
    EXPECT_EQ(shown().leastRate, 1);
    EXPECT_EQ(shown().mostRate, 1);
    media.press(Deed::setRate, 1);
    EXPECT_EQ(delegate->reading().values().finishMinutes, 12);
    EXPECT_EQ(shown().seconds, 12 * 60);
}

TEST_F(MediaSessionTest, TheWholeTakesAsLongAtAnySpeed) {
    switchOn();
    const double seconds = shown().seconds;
    EXPECT_GT(seconds, 30);
    media.press(Deed::setRate, 2);
    EXPECT_NEAR(shown().seconds, seconds, 1) << "at the usual rate";
    view().scrollTo(view().maximumScrollPosition() / 2);
    timers.advance(1.1);
    EXPECT_NEAR(shown().seconds, seconds, 1);
    EXPECT_NEAR(media.player->secondsPlayed(), seconds / 2, 1);
}

TEST_F(MediaSessionTest, GoesWhereItIsAskedTo) {
    switchOn();
    const double most = view().maximumScrollPosition();
    media.press(Deed::goTo, shown().seconds / 2);
    EXPECT_NEAR(view().scrollPosition(), most / 2, most / 50);
    media.press(Deed::moveBy, shown().seconds / 4);
    EXPECT_NEAR(view().scrollPosition(), most * 0.75, most / 50);
    media.press(Deed::moveBy, 1e9);
    EXPECT_EQ(view().scrollPosition(), most);
    media.press(Deed::moveBy, -1e9);
    EXPECT_EQ(view().scrollPosition(), 0);
}

TEST_F(MediaSessionTest, TellsThatAHandMovedTheText) {
    switchOn();
    timers.advance(1.1);
    EXPECT_EQ(media.jumps, 0);
    view().scrollTo(view().maximumScrollPosition() / 2);
    timers.advance(1.1);
    EXPECT_EQ(media.jumps, 1);
    timers.advance(3);
    EXPECT_EQ(media.jumps, 1);
}

TEST_F(MediaSessionTest, ShowsAndEndsTheProgram) {
    switchOn();
    media.press(Deed::show);
    EXPECT_TRUE(delegate->prompter().isVisible());
    media.press(Deed::quit);
    EXPECT_EQ(terminations, 1);
}

} // namespace
} // namespace tessaline
