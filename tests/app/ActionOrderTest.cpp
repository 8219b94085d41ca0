#include "AppDelegateFixture.h"
#include "app/SettingChoices.h"

#include "JournalingPorts.h"
#include "prompter/PrompterWindow.h"
#include "prompter/view/ScriptView.h"
#include "support/PrintQt.h"
#include "ui/ConfigWindow.h"
#include "ui/OnboardingWindow.h"
#include "ui/controls/PopupButton.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

/// A delegate among witnesses that write into one journal.
class ActionOrder : public AppDelegateFixture {
protected:
    ~ActionOrder() override { delegate.reset(); } // before the witnesses

    /// Puts a witness before a port of the platform.
    template <typename Witness, typename Port>
    Witness& watch(std::unique_ptr<Port>& port) {
        auto witness = std::make_unique<Witness>(journal, std::move(port));
        Witness& kept = *witness;
        port = std::move(witness);
        return kept;
    }

    Environment watchedEnvironment() {
        return {
            .platform = platform,
            .obsidian = obsidian,
            .notes = notes,
            .recorder = journalingRecorder,
            .setTelemetryAppID = [](const QString&) {},
            .terminate = [] {},
        };
    }

    void launchWatched() {
        watcher.watchesMoves = true;
        watch<JournalingPolicy>(platform.activationPolicy);
        watch<JournalingKeys>(platform.localKeys);
        watch<JournalingTrust>(platform.trust);
        watch<JournalingTimers>(platform.timers);
        watch<JournalingDisplayLinks>(platform.displayLinks);
        delegate = std::make_unique<AppDelegate>(watchedEnvironment());
        delegate->applicationDidFinishLaunching();
    }

    /// Shows a text that is rendered in the background, and puts the settings window where it does
    /// not belong.
    void prepareChange() {
        launchWatched();
        delegate->scripts().open(
            u"A line of the talk that is not a short one\n"_s.repeated(30'000));
        mainQueue.runAll();
        renderTasks.runAll();
        mainQueue.runAll();
        delegate->showConfig();
        config()->move(1, 1);
        QApplication::processEvents();
        journal.clear();
    }

    /// The entries from the last one of this name on that the test is about.
    std::vector<QString> entries(const QStringList& concerned, const QString& start = {}) const {
        std::vector<QString> found;
        const auto begin = std::max<qsizetype>(journal.lastIndexOf(start), 0);
        for (const QString& entry : journal.mid(begin)) {
            if (concerned.contains(entry) && (found.empty() || found.back() != entry))
                found.push_back(entry);
        }
        return found;
    }

    Journal journal;
    WindowWatcher watcher{journal};
    JournalingRecorder journalingRecorder{journal};
    JournalingRenderTasks& journalingTasks = watch<JournalingRenderTasks>(platform.renderTasks);
};

const QStringList ofTheStart = {u"show Tessaline"_s, u"set up shortcuts"_s, u"content_loaded"_s,
                                u"content_pasted"_s};

TEST_F(ActionOrder, OfTheNormalStart) {
    launchWatched();
    EXPECT_THAT(entries(ofTheStart, u"environment_snapshot"_s),
                ElementsAre(u"show Tessaline"_s, u"set up shortcuts"_s, u"content_loaded"_s));
}

TEST_F(ActionOrder, OfTheFirstRunWindowsAppearance) {
    configure([](PersistedSettings& settings) { settings.hasCompletedOnboarding = false; });
    launchWatched();
    const QStringList concerned = {u"policy regular"_s, u"onboarding_started"_s,
                                   u"make Welcome to Tessaline"_s, u"show Welcome to Tessaline"_s,
                                   u"activate"_s};
    EXPECT_THAT(entries(concerned), ElementsAreArray(concerned));
}

TEST_F(ActionOrder, OfTheFirstRunsEnd) {
    configure([](PersistedSettings& settings) { settings.hasCompletedOnboarding = false; });
    launchWatched();
    delegate->scripts().open(u"# Opened"_s);
    journal.clear();
    onboarding()->onComplete();
    EXPECT_THAT(
        entries(QStringList{u"hide Welcome to Tessaline"_s, u"policy accessory"_s} + ofTheStart),
        ElementsAre(u"hide Welcome to Tessaline"_s, u"policy accessory"_s, u"show Tessaline"_s,
                    u"set up shortcuts"_s, u"content_loaded"_s, u"content_pasted"_s));
}

TEST_F(ActionOrder, OfTheSettingsWindowsAppearance) {
    launchWatched();
    config()->move(1, 1);
    journal.clear();
    delegate->showConfig();
    const QStringList concerned = {u"ask for trust"_s, u"move Settings"_s, u"show Settings"_s,
                                   u"timer 2"_s,       u"activate"_s,      u"settings_opened"_s};
    EXPECT_THAT(entries(concerned), ElementsAreArray(concerned));
}

TEST_F(ActionOrder, OfWhatFollowsAChangeOfTheSettings) {
    configure([](PersistedSettings& settings) {
        settings.hasCompletedOnboarding = true;
        settings.autoScrollEnabled = true;
        settings.scrollSpeed = 2.5;
        settings.scrollRate = ScrollRate::slow;
    });
    prepareChange();
    const auto* view = prompter()->findChild<ScriptView*>();
    ASSERT_TRUE(view);
    std::uint64_t hostTime = 0;
    const auto moveForASecond = [&] {
        const double before = view->scrollPosition();
        displayLinks.refresh(hostTime += 60);
        mainQueue.runAll();
        return QString::number(view->scrollPosition() - before, 'f', 1);
    };
    moveForASecond(); // the first frame has a time of its own, and leaves a rest
    moveForASecond();
    QStringList speeds;
    const auto noteSpeed = [&] { speeds << journal.last() + u' ' + moveForASecond(); };
    journalingTasks.onRun = noteSpeed;
    watcher.onMove = noteSpeed;
    delegate->choices().setScrollRate(ScrollRate::fast);
    EXPECT_THAT(entries({u"place Tessaline"_s, u"render"_s, u"move Settings"_s}),
                ElementsAre(u"place Tessaline"_s, u"render"_s, u"move Settings"_s));
    EXPECT_EQ(speeds, (QStringList{u"render 4.8"_s, u"move Settings 9.6"_s}));
}

TEST_F(ActionOrder, OfWhatFollowsAChangeOfTheScreens) {
    prepareChange();
    auto* popup = config()->findChild<PopupButton*>(u"config_screenPopup"_s);
    ASSERT_TRUE(popup);
    const int before = popup->count();
    Screen other = screens.attached[0];
    other.id = 2;
    other.name = u"other"_s;
    other.frame.x = other.frame.maxX();
    screens.attached.push_back(other);
    int countAtRendering = 0;
    journalingTasks.onRun = [&] { countAtRendering = popup->count(); };
    notifications.post({Screens::parametersDidChangeNotification(), nullptr, {}});
    EXPECT_THAT(entries({u"place Tessaline"_s, u"render"_s}),
                ElementsAre(u"place Tessaline"_s, u"render"_s));
    EXPECT_EQ(countAtRendering, before);
    EXPECT_EQ(popup->count(), before + 1);
}

} // namespace
} // namespace tessaline
