#include "AppDelegateFixture.h"

#include "platform/ScreenCoordinates.h"
#include "prompter/ControlStrip.h"
#include "prompter/PrompterWindow.h"
#include "prompter/controls/PressableButton.h"
#include "prompter/controls/TrafficLightCloseButton.h"
#include "sources/SourceManager.h"
#include "support/Part.h"
#include "support/TestFiles.h"
#include "ui/ConfigWindow.h"
#include "ui/controls/PopupButton.h"

#include "support/RecordedLog.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using AppDelegateTest = AppDelegateFixture;
using AppDelegateDeathTest = AppDelegateFixture;

void notifyOfSource(NotificationCenter& center, std::map<QString, std::any> info) {
    center.post({SourceManager::activeSourceDidChangeNotification(), nullptr, std::move(info)});
}

TEST_F(AppDelegateTest, BuildsNoWindowBeforeTheLaunch) {
    delegate = std::make_unique<AppDelegate>(environment());
    EXPECT_FALSE(prompter());
    EXPECT_FALSE(config());
    EXPECT_THAT(recorder.events, IsEmpty());
}

TEST_F(AppDelegateTest, ShowsThePrompterAtANormalStart) {
    launch();
    EXPECT_TRUE(prompter()->isVisible());
    EXPECT_EQ(windowTraits.keyboardOwner, prompter()->winId());
    EXPECT_FALSE(config()->isVisible());
    EXPECT_FALSE(onboarding());
    EXPECT_THAT(activationPolicy.kinds, IsEmpty());
    EXPECT_EQ(localKeys.starts, 1);
}

TEST_F(AppDelegateTest, StartsWithTheClipboardWhenTheActiveSourceIsNotEnabled) {
    configure([](PersistedSettings& settings) {
        settings.activeSourceType = SourceType::obsidian;
        settings.enabledSourceTypes = {SourceType::clipboard};
    });
    launch();
    EXPECT_EQ(savedSettings().activeSourceType(), SourceType::clipboard);
    EXPECT_EQ(shownSource(), u"CLIPBOARD"_s);
}

TEST_F(AppDelegateTest, WatchesTheActiveSourceFromTheStart) {
    configure([](PersistedSettings& settings) {
        settings.activeSourceType = SourceType::obsidian;
        settings.enabledSourceTypes = {SourceType::clipboard, SourceType::obsidian};
    });
    launch();
    EXPECT_EQ(shownSource(), u"OBSIDIAN"_s);
    EXPECT_THAT(timers.liveIntervals(), Contains(1.0)); // how often the file is read
}

TEST_F(AppDelegateTest, TellsTheTelemetryItsIdentifier) {
    bundle.values[u"TelemetryDeckAppID"_s] = u"an id"_s;
    launch();
    EXPECT_THAT(telemetryAppIDs, ElementsAre(u"an id"_s));
}

TEST_F(AppDelegateTest, LeavesTheTelemetryWithoutIdentifierWhenTheBundleHasNone) {
    launch();
    EXPECT_THAT(telemetryAppIDs, IsEmpty());
}

TEST_F(AppDelegateTest, LeavesTheTelemetryWithoutIdentifierWhenItIsEmpty) {
    bundle.values[u"TelemetryDeckAppID"_s] = QString();
    launch();
    EXPECT_THAT(telemetryAppIDs, IsEmpty());
}

TEST_F(AppDelegateTest, RecordsWhetherThePermissionIsGranted) {
    trust.trusted = true;
    launch();
    const auto event = std::find_if(recorder.events.begin(), recorder.events.end(),
                                    [](const auto& e) { return e.name == u"permission_status"; });
    ASSERT_NE(event, recorder.events.end());
    EXPECT_EQ(event->properties.value(u"permission_type"_s), u"accessibility"_s);
    EXPECT_EQ(event->properties.value(u"granted"_s), u"true"_s);
}

TEST_F(AppDelegateTest, HidesThePrompterByItsQuitButtonAndShowsItAgainInItsPlace) {
    launch();
    const QRect place = prompter()->geometry();
    part<QAbstractButton>(*prompter(), "prompter_quitButton")->click();
    EXPECT_FALSE(prompter()->isVisible());
    EXPECT_EQ(terminations, 0);
    EXPECT_TRUE(recorded(u"window_hidden"_s));

    prompter()->move(3, 4);
    QAction* show = prompter()->actions().first(); // of the status item, which stays
    ASSERT_EQ(show->text(), u"Show Tessaline"_s);
    show->trigger();
    EXPECT_TRUE(prompter()->isVisible());
    EXPECT_EQ(prompter()->geometry(), place);
    EXPECT_EQ(windowTraits.keyboardOwner, prompter()->winId());
    EXPECT_EQ(recorder.events.back().name, u"window_shown"_s);
    EXPECT_THAT(recorder.events.back().properties, IsEmpty());
}

TEST_F(AppDelegateTest, FoldsAndUnfoldsThePrompterByItsMinimizeButton) {
    launch();
    part<QAbstractButton>(*prompter(), "prompter_minimizeButton")->click();
    EXPECT_TRUE(prompter()->isCollapsed());
    EXPECT_EQ(recorder.events.back().name, u"window_minimized"_s);
    part<QAbstractButton>(*prompter(), "prompter_minimizeButton")->click();
    EXPECT_FALSE(prompter()->isCollapsed());
    EXPECT_EQ(recorder.events.back().name, u"window_expanded"_s);
}

TEST_F(AppDelegateTest, TogglesAutoScrollByItsButtonAndRecordsTheNewState) {
    configure([](PersistedSettings& settings) { settings.scrollRate = ScrollRate::fast; });
    launch();
    part<QAbstractButton>(*prompter(), "prompter_autoScrollButton")->click();
    EXPECT_TRUE(savedSettings().autoScrollEnabled());
    EXPECT_EQ(recorder.events.back().name, u"auto_scroll_toggled"_s);
    EXPECT_EQ(recorder.events.back().properties,
              (QMap<QString, QString>{{u"enabled"_s, u"true"_s}, {u"scroll_rate"_s, u"fast"_s}}));
    part<QAbstractButton>(*prompter(), "prompter_autoScrollButton")->click();
    EXPECT_FALSE(savedSettings().autoScrollEnabled());
}

TEST_F(AppDelegateTest, OpensTheSettingsByTheirButton) {
    launch();
    const std::size_t timersBefore = timers.liveIntervals().size();
    part<QAbstractButton>(*prompter(), "prompter_configButton")->click();
    EXPECT_TRUE(config()->isVisible());
    EXPECT_EQ(activationPolicy.activations, 1);
    ASSERT_EQ(timers.liveIntervals().size(), timersBefore + 1);
    EXPECT_EQ(timers.liveIntervals().back(), 2.0) << "its periodic refresh";
    EXPECT_EQ(recorder.events.back().name, u"settings_opened"_s);
}

TEST_F(AppDelegateTest, OpensTheSettingsRightBelowThePrompterWhateverItsOffset) {
    configure([](PersistedSettings& settings) {
        settings.height = 300;
        settings.xOffset = 100;
    });
    launch();
    delegate->showConfig();
    const QRect frame = config()->windowHandle()->frameGeometry();
    EXPECT_EQ(frame.top(), 300);
    EXPECT_NEAR(frame.left() + frame.width() / 2.0, screens.attached[0].frame.midX(), 0.5);
}

TEST_F(AppDelegateTest, OpensTheSettingsWholeOnAScreenThatAHighPrompterFills) {
    configure([](PersistedSettings& settings) {
        settings.width = 380;
        settings.height = 800;
    });
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    screens.attached[0].frame = fromQtCoordinates(screen, screen);
    screens.attached[0].visibleFrame = screens.attached[0].frame;
    launch().showConfig();
    ASSERT_EQ(prompter()->height(), screen.height()) << "nothing is left below";
    EXPECT_TRUE(screen.contains(config()->windowHandle()->frameGeometry()));
}

TEST_F(AppDelegateTest, KeepsTheSettingsOnTheScreenWhenPanelsCome) {
    launch().showConfig();
    Screen& screen = screens.attached[0];
    screen.visibleFrame.y += 100;
    screen.visibleFrame.height -= 250;
    notifications.post({Screens::parametersDidChangeNotification(), nullptr, {}});
    const QRect visible =
        toQtCoordinates(screen.visibleFrame, QGuiApplication::primaryScreen()->geometry());
    EXPECT_TRUE(visible.contains(config()->windowHandle()->frameGeometry()));
}

TEST_F(AppDelegateTest, CutsThePrompterOutWhereTheSettingsLieOverIt) {
    configure([](PersistedSettings& settings) {
        settings.width = 800;
        settings.height = 800;
    });
    launch().showConfig();
    const auto isCutOutByItself = [this] {
        const QRect covered = config()->frameGeometry().translated(-prompter()->pos());
        return prompter()->mask() == QRegion(prompter()->rect()) - covered;
    };
    EXPECT_TRUE(QTest::qWaitFor(isCutOutByItself));
    config()->move(config()->pos() + QPoint(-30, 20));
    EXPECT_TRUE(QTest::qWaitFor(isCutOutByItself));
    config()->close();
    const auto isWhole = [this] { return prompter()->mask().isEmpty(); };
    EXPECT_TRUE(QTest::qWaitFor(isWhole));
}

TEST_F(AppDelegateTest, OffersANewScreenInTheSettingsAtOnce) {
    launch();
    const auto& screenPopup = *config()->findChild<PopupButton*>(u"config_screenPopup"_s);
    Screen other = screens.attached[0];
    other.id = 2;
    other.name = u"another"_s;
    screens.attached.push_back(other);
    EXPECT_EQ(screenPopup.findText(u"another"_s), -1);
    notifications.post({Screens::parametersDidChangeNotification(), nullptr, {}});
    EXPECT_EQ(screenPopup.findText(u"another"_s), 2);
}

TEST_F(AppDelegateTest, HangsFromTheChosenScreenFromTheStart) {
    Screen other = screens.attached[0];
    other.id = 2;
    other.frame.x = other.frame.width;
    screens.attached.push_back(other);
    configure([](PersistedSettings& settings) { settings.preferredDisplayID = 2; });
    launch();
    EXPECT_GE(prompter()->x(), int(other.frame.x));
}

TEST_F(AppDelegateTest, EndsOnRequestAndNotWithItsLastWindow) {
    launch();
    delegate->hidePrompterWindow();
    EXPECT_EQ(terminations, 0);
    EXPECT_FALSE(AppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    delegate->quitApp();
    EXPECT_EQ(terminations, 1);
}

TEST_F(AppDelegateTest, RecordsNothingButTheTerminationWhenItEnds) {
    launch();
    QFile::remove(supportFolderPath() + u"/config.json"_s);
    const auto before = recorder.events.size();
    delegate->applicationWillTerminate();
    EXPECT_EQ(recorder.events.size(), before + 1);
    EXPECT_EQ(recorder.events.back().name, u"app_terminate"_s);
    EXPECT_FALSE(QFile::exists(supportFolderPath() + u"/config.json"_s));
}

TEST_F(AppDelegateTest, CallbacksDoNothingOnceItIsGone) {
    launch();
    const auto settingsChanged = config()->onSettingsChanged;
    const auto sourceChanged = config()->onSourceChanged;
    const auto key = localKeys.handler;
    delegate.reset();
    const auto before = recorder.events.size();
    settingsChanged();
    sourceChanged(SourceType::clipboard);
    notifyOfSource(notifications, {{u"sourceType"_s, SourceType::obsidian}});
    notifications.post({Screens::parametersDidChangeNotification(), nullptr, {}});
    key({.characters = u"v"_s, .modifiers = Modifier::command});
    mainQueue.runAll();
    EXPECT_EQ(recorder.events.size(), before);
}

TEST_F(AppDelegateTest, PastesWithCommandV) {
    launch();
    pasteboard.text = u"# Three words here"_s;
    EXPECT_TRUE(localKeys.press({.characters = u"v"_s, .modifiers = Modifier::command}));
    EXPECT_EQ(keptScript(), u"# Three words here"_s);
    EXPECT_EQ(recorder.events.back().name, u"content_pasted"_s);
    EXPECT_EQ(recorder.events.back().properties.value(u"word_count"_s), u"3"_s);
}

TEST_F(AppDelegateTest, PastesOnceTheClipboardsOwnerHasAnswered) {
    launch();
    pasteboard.answersAtOnce = false;
    localKeys.press({.characters = u"v"_s, .modifiers = Modifier::command});
    EXPECT_FALSE(recorded(u"content_pasted"_s));
    pasteboard.text = u"Hello"_s;
    pasteboard.answer();
    EXPECT_EQ(keptScript(), u"Hello"_s);
    EXPECT_TRUE(recorded(u"content_pasted"_s));
}

TEST_F(AppDelegateTest, SaysWhyNothingWasPasted) {
    launch().scripts().open(u"Shown before"_s);
    const RecordedLog log;
    pasteboard.problem = u"the owner does not answer"_s;
    QString told;
    delegate->scripts().paste([&told](const QString& problem) { told = problem; });
    EXPECT_EQ(told, u"the owner does not answer"_s);
    EXPECT_EQ(log.entries(), QStringList(u"app.tessaline.Tessaline.shell: Nothing was pasted: "
                                         "the owner does not answer"_s));
    EXPECT_EQ(keptScript(), u"Shown before"_s);
}

TEST_F(AppDelegateTest, DropsAPasteThatComesAfterItsEnd) {
    launch();
    pasteboard.answersAtOnce = false;
    bool told = false;
    delegate->scripts().paste([&told](const QString& /*problem*/) { told = true; });
    delegate.reset();
    pasteboard.text = u"Hello"_s;
    pasteboard.answer();
    EXPECT_FALSE(told);
}

TEST_F(AppDelegateTest, PastesIntoTheClipboardSourceWhateverIsActive) {
    configure([](PersistedSettings& settings) {
        settings.activeSourceType = SourceType::obsidian;
        settings.enabledSourceTypes = {SourceType::clipboard, SourceType::obsidian};
    });
    launch();
    pasteboard.text = u"Hello"_s;
    localKeys.press({.characters = u"v"_s, .modifiers = Modifier::command});
    EXPECT_EQ(savedSettings().activeSourceType(), SourceType::clipboard);
    EXPECT_EQ(shownSource(), u"CLIPBOARD"_s);
    EXPECT_EQ(config()->findChild<PopupButton*>(u"config_sourcePopup"_s)->currentText(),
              u"Clipboard"_s);
    EXPECT_EQ(keptScript(), u"Hello"_s);
    // Only the active source's text is content: the switch came first.
    EXPECT_EQ(recorder.events.back().name, u"content_pasted"_s);
    EXPECT_EQ(recorder.events.back().properties.value(u"word_count"_s), u"1"_s);
}

TEST_F(AppDelegateTest, ShowsAnOpenedTextAsIfItHadBeenPasted) {
    launch().scripts().open(u"# Opened"_s);
    EXPECT_EQ(keptScript(), u"# Opened"_s);
    EXPECT_TRUE(recorded(u"content_pasted"_s));
}

TEST_F(AppDelegateTest, ChangesNothingForAnOpenedTextThatIsEmpty) {
    configure([](PersistedSettings& settings) {
        settings.activeSourceType = SourceType::obsidian;
        settings.enabledSourceTypes = {SourceType::clipboard, SourceType::obsidian};
    });
    launch().scripts().open({});
    EXPECT_EQ(shownSource(), u"OBSIDIAN"_s);
    EXPECT_FALSE(recorded(u"content_pasted"_s));
}

TEST_F(AppDelegateTest, GoesOnFollowingAFileAfterAnEmptyText) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"talk.md"_s);
    putFile(path, "new");
    launch().scripts().follow(path, u"old"_s);
    delegate->scripts().open({});
    timers.advance(0.5);
    fileTasks.runAll();
    mainQueue.runAll();
    EXPECT_EQ(keptScript(), u"new"_s);
}

TEST_F(AppDelegateTest, KeepsTheTextOfAFollowedFileThatIsEmptied) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"talk.md"_s);
    putFile(path, "");
    launch().scripts().follow(path, u"old"_s);
    const auto events = recorder.events.size();
    timers.advance(0.5);
    fileTasks.runAll();
    mainQueue.runAll();
    EXPECT_EQ(keptScript(), u"old"_s);
    EXPECT_EQ(recorder.events.size(), events);
}

TEST_F(AppDelegateTest, RevealsTheHiddenPrompter) {
    launch().hidePrompterWindow();
    delegate->reveal();
    EXPECT_TRUE(prompter()->isVisible());
}

TEST_F(AppDelegateDeathTest, AnActionBeforeTheLaunchEndsTheProgram) {
    delegate = std::make_unique<AppDelegate>(environment());
    EXPECT_DEATH(delegate->showPrompterWindow(), "no prompter window: it was not launched");
    EXPECT_DEATH(delegate->hidePrompterWindow(), "no prompter window");
    EXPECT_DEATH(delegate->toggleMinimize(), "no prompter window");
    EXPECT_DEATH(delegate->toggleScroll(), "no prompter window");
    EXPECT_DEATH(delegate->cycleSource(), "no source manager");
    EXPECT_DEATH(delegate->showConfig(), "no settings window");
}

} // namespace
} // namespace tessaline
