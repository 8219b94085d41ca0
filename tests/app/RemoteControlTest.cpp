#include "app/RemoteControl.h"
#include "AppDelegateFixture.h"
#include "cli/ControlAnswer.h"
#include "cli/ControlRequest.h"
#include "prompter/PrompterWindow.h"
#include "prompter/covers/TextCovers.h"
#include "prompter/view/ScriptView.h"
#include "settings/ReadingSettings.h"
#include "support/PrintQt.h"
#include "ui/ConfigWindow.h"
#include "ui/controls/PointSlider.h"
#include "ui/controls/PopupButton.h"

#include <QApplication>
#include <QTest>

#include <gmock/gmock.h>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;

class RemoteControlTest : public AppDelegateFixture {
protected:
    /// What the running program answers to `tessaline ctl` with these words; empty so far if it
    /// does so later.
    std::optional<RemoteAnswer> answerTo(const QString& words) {
        QString problem;
        const auto request = ControlRequest::parse(words.split(u' '), &problem);
        EXPECT_TRUE(request) << problem.toStdString();
        lastAnswer.reset();
        RemoteControl(*delegate).carryOut(
            *request, [this](const RemoteAnswer& reply) { lastAnswer = reply; });
        return lastAnswer;
    }

    PrompterStatus statusAfter(const QString& words) {
        const auto answer = answerTo(words);
        const auto* status = answer ? std::get_if<PrompterStatus>(&*answer) : nullptr;
        EXPECT_TRUE(status) << words.toStdString();
        return status ? *status : PrompterStatus{};
    }

    /// What the command line prints of it.
    QString textOf(const QString& words) {
        return controlAnswer(*ControlRequest::parse(words.split(u' '), nullptr),
                             statusAfter(words));
    }

    QString refusalOf(const QString& words) {
        const auto answer = answerTo(words);
        const auto* refusal = answer ? std::get_if<Refusal>(&*answer) : nullptr;
        EXPECT_TRUE(refusal) << words.toStdString();
        return refusal ? refusal->reason : QString();
    }

    /// Shows a script of a hundred headings with a line below each.
    void showLongScript() {
        delegate->scripts().open(u"# heading\nline\n"_s.repeated(100));
        mainQueue.runAll();
        prompter()->textView().completeLayout();
    }

    /// The names and values of the settings whose change was recorded.
    std::vector<std::pair<QString, QString>> changedSettings() const {
        std::vector<std::pair<QString, QString>> changes;
        for (const AnalyticsEvent& event : recorder.events) {
            if (event.name != u"setting_changed") continue;
            changes.emplace_back(event.properties.value(u"setting_name"_s),
                                 event.properties.value(u"setting_value"_s));
        }
        return changes;
    }

    double position() { return prompter()->textView().scrollPosition(); }

    std::optional<RemoteAnswer> lastAnswer;
};

TEST_F(RemoteControlTest, StartsAndStopsTheText) {
    launch();
    EXPECT_EQ(textOf(u"play"_s), u"auto-scroll on"_s);
    EXPECT_EQ(textOf(u"play"_s), u"auto-scroll on"_s);
    EXPECT_TRUE(savedSettings().autoScrollEnabled());
    EXPECT_EQ(textOf(u"pause"_s), u"auto-scroll off"_s);
    EXPECT_EQ(textOf(u"pause"_s), u"auto-scroll off"_s);
    EXPECT_FALSE(savedSettings().autoScrollEnabled());
    EXPECT_EQ(textOf(u"toggle"_s), u"auto-scroll on"_s);
    EXPECT_EQ(textOf(u"toggle"_s), u"auto-scroll off"_s);
}

TEST_F(RemoteControlTest, ChangesSpeedAndRate) {
    launch();
    EXPECT_EQ(textOf(u"speed 2"_s), u"speed 2"_s);
    const double speed = delegate->currentSettings().scrollSpeed();
    textOf(u"faster"_s);
    EXPECT_GT(delegate->currentSettings().scrollSpeed(), speed);
    textOf(u"slower"_s);
    textOf(u"slower"_s);
    EXPECT_LT(delegate->currentSettings().scrollSpeed(), speed);
    EXPECT_EQ(textOf(u"speed 5"_s), u"speed 5"_s);
    EXPECT_EQ(textOf(u"faster"_s), u"speed 5"_s);
    EXPECT_EQ(textOf(u"rate fast"_s), u"rate fast"_s);
    EXPECT_EQ(savedSettings().scrollRate(), ScrollRate::fast);
}

TEST_F(RemoteControlTest, ChangesTheReadingOptions) {
    launch();
    const ReadingSettings& reading = delegate->reading();
    EXPECT_EQ(textOf(u"pace words 160"_s), u"160 words a minute"_s);
    EXPECT_EQ(textOf(u"guide band 2"_s), u"guide band 2"_s);
    EXPECT_EQ(textOf(u"eyeline 33"_s), u"eye line at 33 percent"_s);
    EXPECT_EQ(textOf(u"countdown 3"_s), u"countdown 3 s"_s);
    EXPECT_EQ(textOf(u"at-end round"_s), u"at the end: round"_s);
    EXPECT_EQ(textOf(u"glide on"_s), u"glide on"_s);
    EXPECT_EQ(reading.values(), (ReadingOptions{.pace = PaceMode::words,
                                                .wordsPerMinute = 160,
                                                .eyeLine = 0.33,
                                                .guide = ReadingGuide::band,
                                                .guideLines = 2,
                                                .countdownSeconds = 3,
                                                .atEnd = ScriptEnd::goRound,
                                                .glide = true}));
    EXPECT_EQ(ReadingSettings().values(), reading.values());
    EXPECT_EQ(statusAfter(u"status"_s).eyeLine, u"33"_s);

    for (const auto words :
         {"pace speed", "guide none", "eyeline second", "countdown 0", "at-end stand", "glide off"})
        textOf(QString::fromLatin1(words));
    EXPECT_EQ(reading.values(), (ReadingOptions{.wordsPerMinute = 160, .guideLines = 2}));
    EXPECT_EQ(statusAfter(u"status"_s).eyeLine, u"second"_s);
    EXPECT_EQ(savedSettings().values(), delegate->currentSettings().values());
}

TEST_F(RemoteControlTest, ChangesHowTheTextLooks) {
    launch();
    const ReadingSettings& reading = delegate->reading();
    EXPECT_EQ(textOf(u"mirror both"_s), u"mirror both"_s);
    EXPECT_EQ(textOf(u"opacity 70"_s), u"opacity 70 percent"_s);
    EXPECT_EQ(textOf(u"click-through on"_s), u"click-through on"_s);
    EXPECT_EQ(textOf(u"font DejaVu Serif"_s), u"font DejaVu Serif"_s);
    EXPECT_EQ(textOf(u"line-spacing 1.5"_s), u"line spacing 1.5"_s);
    EXPECT_EQ(textOf(u"distance 83"_s), u"reading distance 85 cm"_s);
    EXPECT_EQ(reading.values(), (ReadingOptions{.mirror = Mirroring::both,
                                                .groundOpacity = 0.7,
                                                .clickThrough = true,
                                                .fontFamily = u"DejaVu Serif"_s,
                                                .lineSpacing = 1.5,
                                                .readingDistance = 85}));
    for (const auto words : {"mirror none", "opacity 100", "click-through off", "font default",
                             "line-spacing 1", "distance 60"})
        textOf(QString::fromLatin1(words));
    EXPECT_EQ(reading.values(), ReadingOptions());
}

TEST_F(RemoteControlTest, ShowsTheReadingOptionsWithoutTheSettings) {
    launch();
    const auto readingWindows = [] {
        const auto all = QApplication::topLevelWidgets();
        return std::count_if(all.begin(), all.end(), [](const QWidget* window) {
            return window->windowTitle() == u"Reading"_s && window->isVisible();
        });
    };
    EXPECT_EQ(readingWindows(), 0);
    EXPECT_EQ(textOf(u"reading"_s), u"reading options shown"_s);
    EXPECT_EQ(readingWindows(), 1);
    textOf(u"reading"_s);
    EXPECT_EQ(readingWindows(), 1);
    EXPECT_FALSE(config()->isVisible());
}

TEST_F(RemoteControlTest, TakesTheMomentToFinishAsMinutesOrAsATime) {
    launch();
    EXPECT_EQ(textOf(u"pace finish 12.5m"_s), u"finish in 12.5 min"_s);
    EXPECT_EQ(delegate->reading().values().finishMinutes, 12.5);
    // Midnight is over, whenever this runs.
    EXPECT_EQ(textOf(u"pace finish 0:00"_s),
              u"finish at 00:00 tomorrow: that time has passed today"_s);
    EXPECT_EQ(delegate->reading().values().finishAt, TimeOfDay{0});
    textOf(u"pace speed"_s);
    EXPECT_EQ(statusAfter(u"pace finish"_s).finish, u"00:00"_s);
    EXPECT_EQ(textOf(u"pace finish 12m"_s), u"finish in 12 min"_s);
    EXPECT_EQ(delegate->reading().values().finishAt, std::nullopt);
}

TEST_F(RemoteControlTest, StepsWhatThePaceGoesBy) {
    launch();
    textOf(u"speed 2"_s);
    textOf(u"pace words 150"_s);
    EXPECT_EQ(textOf(u"faster"_s), u"155 words a minute"_s);
    EXPECT_EQ(textOf(u"slower"_s), u"150 words a minute"_s);
    textOf(u"pace words 300"_s);
    EXPECT_EQ(textOf(u"faster"_s), u"300 words a minute"_s);
    textOf(u"pace finish 1m"_s);
    EXPECT_EQ(textOf(u"faster"_s), u"finish in 0.5 min"_s);
    EXPECT_EQ(textOf(u"faster"_s), u"finish in 0.5 min"_s);
    EXPECT_EQ(textOf(u"slower"_s), u"finish in 1 min"_s);
    EXPECT_EQ(delegate->currentSettings().scrollSpeed(), 2.0);
    textOf(u"pace speed"_s);
    EXPECT_EQ(textOf(u"faster"_s), u"speed 2.25"_s);
}

TEST_F(RemoteControlTest, ChangesNothingButTheRate) {
    configure([](PersistedSettings& settings) {
        settings.hasCompletedOnboarding = true;
        settings.width = 1234.5; // more than the slider can show
        settings.height = 77.25;
        settings.fontSize = 42.5;
        settings.xOffset = 7;
        settings.scrollSpeed = 1.5;
    });
    const PersistedSettings before = savedSettings().values();
    launch();
    recorder.events.clear();
    EXPECT_EQ(textOf(u"rate slow"_s), u"rate slow"_s);
    PersistedSettings expected = before;
    expected.scrollRate = ScrollRate::slow;
    EXPECT_EQ(savedSettings().values(), expected);
    const auto* popup = config()->findChild<PopupButton*>(u"tickFactorPopup"_s);
    ASSERT_TRUE(popup);
    EXPECT_EQ(popup->currentText(), u"Slow"_s);
    EXPECT_THAT(changedSettings(),
                ElementsAre(std::pair(u"width"_s, u"1234"_s), std::pair(u"height"_s, u"77"_s),
                            std::pair(u"fontSize"_s, u"42"_s),
                            std::pair(u"scrollRate"_s, u"slow"_s)));
}

TEST_F(RemoteControlTest, TheSameRateAgainGivesAnUnfoldedPrompterItsNewHeight) {
    launch();
    const int before = prompter()->height();
    textOf(u"minimize"_s);
    auto* slider = config()->findChild<PointSlider*>(u"heightSlider"_s);
    ASSERT_TRUE(slider);
    QTest::keyClick(slider, Qt::Key_Home);
    textOf(u"expand"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return prompter()->height() == before; }));
    textOf(u"rate medium"_s);
    EXPECT_EQ(prompter()->height(), savedSettings().height());
}

TEST_F(RemoteControlTest, ChangesNothingButTheSource) {
    configure([](PersistedSettings& settings) {
        settings.hasCompletedOnboarding = true;
        settings.enabledSourceTypes = {SourceType::obsidian, SourceType::clipboard};
        settings.width = 1234.5;
    });
    PersistedSettings expected = savedSettings().values();
    launch();
    expected.activeSourceType = SourceType::obsidian;
    EXPECT_EQ(textOf(u"source obsidian"_s), u"source obsidian"_s);
    EXPECT_EQ(savedSettings().values(), expected);
    const auto* popup = config()->findChild<PopupButton*>(u"config_sourcePopup"_s);
    ASSERT_TRUE(popup);
    EXPECT_EQ(popup->currentText(), u"Obsidian"_s);
}

TEST_F(RemoteControlTest, MovesTheText) {
    launch();
    showLongScript();
    const QString answer = textOf(u"down"_s);
    const double step = position();
    EXPECT_GT(step, 0);
    EXPECT_TRUE(answer.startsWith(u"position %1 of "_s.arg(step, 0, 'f', 1)));
    textOf(u"down"_s);
    textOf(u"up"_s);
    EXPECT_DOUBLE_EQ(position(), step);
    textOf(u"top"_s);
    EXPECT_EQ(position(), 0);
    textOf(u"next-heading"_s);
    const double heading = position();
    EXPECT_GT(heading, 0);
    textOf(u"next-heading"_s);
    EXPECT_GT(position(), heading);
    textOf(u"previous-heading"_s);
    EXPECT_DOUBLE_EQ(position(), heading);
    textOf(u"heading 3"_s);
    const double third = position();
    EXPECT_GT(third, heading);
    EXPECT_EQ(textOf(u"heading 101"_s), textOf(u"heading 3"_s)) << "there are a hundred";
    EXPECT_DOUBLE_EQ(position(), third);
    textOf(u"paragraph 3"_s);
    EXPECT_DOUBLE_EQ(position(), heading) << "each heading has a line below it";
    EXPECT_EQ(textOf(u"paragraph 1000"_s), textOf(u"paragraph 3"_s)) << "there are not as many";
    textOf(u"scroll 12.5"_s);
    EXPECT_DOUBLE_EQ(position(), heading + 12.5);
    textOf(u"scroll -12.5"_s);
    EXPECT_DOUBLE_EQ(position(), heading);
}

TEST_F(RemoteControlTest, BlacksTheTextOutAndShowsTheKeys) {
    launch();
    showLongScript();
    EXPECT_EQ(textOf(u"black on"_s), u"text blacked out"_s);
    EXPECT_EQ(textOf(u"black on"_s), u"text blacked out"_s);
    EXPECT_TRUE(prompter()->covers().isBlack());
    EXPECT_EQ(textOf(u"black off"_s), u"text shown"_s);
    EXPECT_EQ(textOf(u"black toggle"_s), u"text blacked out"_s);
    EXPECT_EQ(textOf(u"black toggle"_s), u"text shown"_s);
    EXPECT_FALSE(prompter()->covers().isBlack());
    EXPECT_EQ(textOf(u"keys toggle"_s), u"keys shown"_s);
    EXPECT_TRUE(prompter()->covers().showsKeys());
    EXPECT_EQ(textOf(u"keys off"_s), u"keys hidden"_s);
    EXPECT_FALSE(prompter()->covers().showsKeys());
}

TEST_F(RemoteControlTest, ShowsHidesAndFoldsThePrompter) {
    launch();
    EXPECT_EQ(textOf(u"hide"_s), u"hidden"_s);
    EXPECT_FALSE(prompter()->isVisible());
    EXPECT_EQ(textOf(u"show"_s), u"shown"_s);
    EXPECT_TRUE(prompter()->isVisible());
    EXPECT_EQ(textOf(u"minimize"_s), u"minimized"_s);
    EXPECT_EQ(textOf(u"minimize"_s), u"minimized"_s);
    EXPECT_TRUE(prompter()->isCollapsed());
    EXPECT_EQ(textOf(u"expand"_s), u"expanded"_s);
    EXPECT_EQ(textOf(u"expand"_s), u"expanded"_s);
    EXPECT_FALSE(prompter()->isCollapsed());
}

TEST_F(RemoteControlTest, OpensTheSettingsPastesAndEnds) {
    launch();
    pasteboard.text = u"# Pasted"_s;
    EXPECT_EQ(textOf(u"paste"_s), u"pasted"_s);
    EXPECT_EQ(keptScript(), u"# Pasted"_s);
    EXPECT_EQ(textOf(u"settings"_s), u"settings shown"_s);
    ASSERT_TRUE(config());
    EXPECT_TRUE(config()->isVisible());
    EXPECT_EQ(textOf(u"quit"_s), u"ending"_s);
    EXPECT_EQ(terminations, 1);
}

TEST_F(RemoteControlTest, SaysThatNothingWasPasted) {
    launch();
    EXPECT_EQ(refusalOf(u"paste"_s), u"the clipboard holds no text"_s);
    pasteboard.text = u""_s;
    EXPECT_EQ(refusalOf(u"paste"_s), u"the clipboard holds no text"_s);
    pasteboard.problem = u"the owner does not answer"_s;
    EXPECT_EQ(refusalOf(u"paste"_s), u"the owner does not answer"_s);
}

TEST_F(RemoteControlTest, SaysPastedOnceThatIsTrue) {
    launch();
    pasteboard.answersAtOnce = false;
    EXPECT_FALSE(answerTo(u"paste"_s));
    pasteboard.text = u"Hello"_s;
    pasteboard.answer();
    ASSERT_TRUE(lastAnswer);
    EXPECT_EQ(*lastAnswer, RemoteAnswer(delegate->status()));
    EXPECT_EQ(keptScript(), u"Hello"_s);
}

TEST_F(RemoteControlTest, ChoosesAmongTheEnabledSources) {
    configure([](PersistedSettings& settings) {
        settings.hasCompletedOnboarding = true;
        settings.enabledSourceTypes = {SourceType::obsidian, SourceType::clipboard};
        settings.activeSourceType = SourceType::clipboard;
    });
    launch();
    EXPECT_EQ(textOf(u"source obsidian"_s), u"source obsidian"_s);
    EXPECT_EQ(savedSettings().activeSourceType(), SourceType::obsidian);
}

TEST_F(RemoteControlTest, RefusesASourceThatIsNotEnabled) {
    launch();
    ASSERT_EQ(savedSettings().activeSourceType(), SourceType::clipboard);
    EXPECT_EQ(refusalOf(u"source obsidian"_s),
              u"the source 'obsidian' is not enabled in the settings"_s);
    EXPECT_EQ(savedSettings().activeSourceType(), SourceType::clipboard);
}

TEST_F(RemoteControlTest, TellsWhatThePrompterShowsAndDoes) {
    launch();
    delegate->scripts().open(u"one two three"_s);
    mainQueue.runAll();
    const PrompterStatus shown = statusAfter(u"status"_s);
    EXPECT_TRUE(shown.visible);
    EXPECT_FALSE(shown.collapsed);
    EXPECT_EQ(shown.source, SourceType::clipboard);
    EXPECT_EQ(shown.words, 3);
    EXPECT_FALSE(shown.autoScroll);
    EXPECT_FALSE(shown.version.isEmpty());
    EXPECT_FALSE(statusAfter(u"hide"_s).visible);
}

TEST_F(RemoteControlTest, WaitsForTheFirstRunToEndButTellsTheStatus) {
    configure([](PersistedSettings& settings) { settings.hasCompletedOnboarding = false; });
    launch();
    EXPECT_EQ(refusalOf(u"play"_s), u"the first-run window is still open"_s);
    EXPECT_FALSE(statusAfter(u"status"_s).visible);
    EXPECT_EQ(textOf(u"quit"_s), u"ending"_s);
}

} // namespace
} // namespace tessaline
