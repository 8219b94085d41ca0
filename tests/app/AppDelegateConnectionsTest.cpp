#include "AppDelegateFixture.h"
#include "app/SettingChoices.h"

#include "support/Part.h"

#include "appearance/SystemPalette.h"
#include "controls/ElidingLabel.h"
#include "prompter/ControlStrip.h"
#include "prompter/PrompterWindow.h"
#include "prompter/controls/PressableButton.h"
#include "prompter/view/ScriptView.h"
#include "reading/ReadingSession.h"
#include "sources/SourceManager.h"
#include "ui/ConfigWindow.h"
#include "ui/controls/PointSlider.h"
#include "ui/controls/PopupButton.h"

#include <QAbstractButton>
#include <QLabel>
#include <QWindow>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;

/// How the windows and managers act on one another.
class AppDelegateConnections : public AppDelegateFixture {
protected:
    void enableBothSources() {
        configure([](PersistedSettings& settings) {
            settings.enabledSourceTypes = {SourceType::clipboard, SourceType::obsidian};
        });
    }

    void launchWith(const QString& script) {
        launch().scripts().open(script);
        mainQueue.runAll();
    }

    PointSlider& slider(const char* name) {
        return *config()->findChild<PointSlider*>(QString::fromLatin1(name));
    }

    const Script& shownScript() { return prompter()->textView().script(); }

    /// So that it is seen whether it is rendered again.
    void forgetShownText() { prompter()->reading().setContent({}); }

    /// The size in points of the text's beginning.
    double shownSize() { return prompter()->textView().sizeOf(*shownScript().attributes(0)->font); }

    int settingsTop() { return config()->windowHandle()->frameGeometry().top(); }

    void announceSource(std::map<QString, std::any> info) {
        notifications.post(
            {SourceManager::activeSourceDidChangeNotification(), nullptr, std::move(info)});
    }
};

TEST_F(AppDelegateConnections, ShowTheTextOfTheSourceInThePrompter) {
    launchWith(u"# Hello"_s);
    EXPECT_EQ(shownScript().text(), u"Hello"_s);
}

TEST_F(AppDelegateConnections, PlaceAndRenderThePrompterAnewWhenASettingChanges) {
    launchWith(u"Hello"_s);
    slider("heightSlider").moveTo(300);
    EXPECT_EQ(prompter()->height(), 300);
    slider("fontSlider").moveTo(24);
    EXPECT_EQ(shownSize(), 24);
}

TEST_F(AppDelegateConnections, ScrollAtTheRateThatIsChosen) {
    configure([](PersistedSettings& settings) {
        settings.autoScrollEnabled = true;
        settings.scrollSpeed = 2.5;
    });
    launchWith(u"line\n"_s.repeated(100));
    delegate->choices().setScrollRate(ScrollRate::fast);
    displayLinks.refresh(1);
    mainQueue.runAll();
    EXPECT_NEAR(prompter()->textView().scrollPosition(), 0.16, 1e-9);
    EXPECT_EQ(
        part<QLabel>(*prompter(), "prompter_statsLabel")->palette().color(QPalette::WindowText),
        SystemPalette::red);
}

TEST_F(AppDelegateConnections, KeepTheSettingsWindowBelowThePrompterWhenItsHeightChanges) {
    launch();
    delegate->showConfig();
    slider("heightSlider").moveTo(300);
    EXPECT_EQ(settingsTop(), 300);
}

TEST_F(AppDelegateConnections, PutTheSettingsWindowOnTheScreenThatThePrompterIsOn) {
    Screen other = screens.attached[0];
    other.id = 2;
    other.frame.x = other.frame.width;
    other.visibleFrame = other.frame;
    screens.attached.push_back(other);
    launch();
    prompter()->move(int(other.frame.x) + 100, 0);
    delegate->showConfig();
    const QRect frame = config()->windowHandle()->frameGeometry();
    EXPECT_NEAR(frame.left() + frame.width() / 2.0, other.frame.midX(), 0.5);
}

TEST_F(AppDelegateConnections, BringAMinimizedSettingsWindowBack) {
    launch();
    config()->showMinimized();
    delegate->showConfig();
    EXPECT_FALSE(config()->isMinimized());
}

TEST_F(AppDelegateConnections, BringTheSettingsWindowUpToDateBeforeItIsShown) {
    launch();
    slider("widthSlider").setPoints(700);
    delegate->showConfig();
    EXPECT_EQ(slider("widthSlider").points(), 450);
}

TEST_F(AppDelegateConnections, BringTheSettingsWindowUpToDateWhenAutoScrollIsToggled) {
    launch();
    slider("widthSlider").setPoints(700);
    delegate->toggleScroll();
    EXPECT_EQ(slider("widthSlider").points(), 450);
}

TEST_F(AppDelegateConnections, PlaceAndRenderThePrompterAnewWhenTheScreensChange) {
    launchWith(u"Hello"_s);
    prompter()->move(3, 4);
    forgetShownText();
    notifications.post({Screens::parametersDidChangeNotification(), nullptr, {}});
    EXPECT_EQ(prompter()->y(), 0);
    EXPECT_EQ(shownScript().text(), u"Hello"_s);
}

TEST_F(AppDelegateConnections, WatchTheSourceThatIsChosenInTheSettings) {
    enableBothSources();
    launch();
    recorder.events.clear();
    ASSERT_TRUE(delegate->choices().setSource(SourceType::obsidian));
    EXPECT_EQ(shownSource(), u"OBSIDIAN"_s);
    EXPECT_THAT(timers.liveIntervals(), Contains(1.0)); // how often the file is read
    ASSERT_THAT(recordedNames(), ElementsAre(u"source_changed"_s));
    EXPECT_EQ(recorder.events[0].properties.value(u"source_type"_s), u"obsidian"_s);
    recorder.events.clear();
    ASSERT_TRUE(delegate->choices().setSource(SourceType::clipboard));
    EXPECT_EQ(shownSource(), u"CLIPBOARD"_s);
    EXPECT_THAT(recordedNames(), ElementsAre(u"content_loaded"_s, u"source_changed"_s));
}

TEST_F(AppDelegateConnections, NameTheSourceThatTheSettingsWindowTells) {
    launch();
    config()->onSourceChanged(SourceType::obsidian);
    EXPECT_EQ(shownSource(), u"OBSIDIAN"_s);
}

TEST_F(AppDelegateConnections, CycleTheSourceByThePasteButton) {
    enableBothSources();
    launch();
    ASSERT_EQ(shownSource(), u"CLIPBOARD"_s);
    part<QAbstractButton>(*prompter(), "prompter_pasteButton")->click();
    EXPECT_EQ(shownSource(), u"OBSIDIAN"_s);
    EXPECT_THAT(timers.liveIntervals(), Contains(1.0));
    part<QAbstractButton>(*prompter(), "prompter_pasteButton")->click();
    EXPECT_EQ(shownSource(), u"CLIPBOARD"_s);
}

TEST_F(AppDelegateConnections, ShowTheCycledSourceInTheSettings) {
    enableBothSources();
    launch();
    delegate->showConfig();
    part<QAbstractButton>(*prompter(), "prompter_pasteButton")->click();
    const auto* popup = config()->findChild<PopupButton*>(u"config_sourcePopup"_s);
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->currentText(), u"Obsidian"_s);
}

TEST_F(AppDelegateConnections, ShowWhichSourceANotificationNames) {
    launch();
    announceSource({{u"sourceType"_s, SourceType::obsidian}});
    EXPECT_EQ(shownSource(), u"OBSIDIAN"_s);
}

TEST_F(AppDelegateConnections, IgnoreANotificationWithoutASource) {
    launch();
    announceSource({});
    EXPECT_EQ(shownSource(), u"CLIPBOARD"_s);
}

TEST_F(AppDelegateConnections, IgnoreANotificationWithSomethingElseInTheSourcesPlace) {
    launch();
    announceSource({{u"sourceType"_s, u"obsidian"_s}});
    announceSource({{u"sourceType"_s, 0}});
    EXPECT_EQ(shownSource(), u"CLIPBOARD"_s);
}

} // namespace
} // namespace tessaline
