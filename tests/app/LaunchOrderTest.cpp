#include "AppDelegateFixture.h"

#include "Witnesses.h"
#include "sources/SourceManager.h"

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class LaunchOrder : public AppDelegateFixture {
protected:
    void launchAmongWitnesses() {
        const WindowWatcher watcher(journal);
        JournalingRecorder journalingRecorder(journal);
        JournalingBundle journalingBundle(journal);
        const auto source =
            notifications.observe(SourceManager::activeSourceDidChangeNotification(),
                                  [this](const Notification&) { journal << u"select source"_s; });
        Environment system = environment();
        Environment watched{
            .prompter = system.prompter,
            .fileTasks = system.fileTasks,
            .notifications = system.notifications,
            .pasteboard = system.pasteboard,
            .trust = system.trust,
            .processes = system.processes,
            .bundle = journalingBundle,
            .localKeys = system.localKeys,
            .globalKeys = system.globalKeys,
            .eventTaps = system.eventTaps,
            .activationPolicy = system.activationPolicy,
            .icons = system.icons,
            .obsidian = system.obsidian,
            .notes = system.notes,
            .recorder = journalingRecorder,
            .setTelemetryAppID = [this](const QString&) { journal << u"set telemetry id"_s; },
            .systemSymbol =
                [this](const QString& name, const QString&) {
                    journal << u"draw "_s + name;
                    return QImage();
                },
            .hasStatusArea = system.hasStatusArea,
            .terminate = system.terminate,
        };
        delegate = std::make_unique<AppDelegate>(watched);
        journal << u"constructed"_s;
        delegate->applicationDidFinishLaunching();
        delegate.reset(); // before the witnesses
    }

    Journal journal;
};

const Journal untilTheWindows = {
    u"constructed"_s,
    u"app_launch"_s,
    u"select source"_s,
    u"make Tessaline"_s,
    u"make Settings"_s,
    u"draw rectangle.topthird.inset.filled"_s,
    u"read TelemetryDeckAppID"_s,
    u"set telemetry id"_s,
    u"permission_status"_s,
    u"environment_snapshot"_s,
};

TEST_F(LaunchOrder, OfANormalStart) {
    launchAmongWitnesses();
    EXPECT_EQ(journal.first(untilTheWindows.size()), untilTheWindows);
    EXPECT_EQ(journal.value(untilTheWindows.size()), u"show Tessaline"_s);
    EXPECT_FALSE(journal.contains(u"onboarding_started"_s));
}

TEST_F(LaunchOrder, OfAFirstStart) {
    configure([](AppSettings& settings) { settings.hasCompletedOnboarding = false; });
    launchAmongWitnesses();
    EXPECT_EQ(journal.first(untilTheWindows.size()), untilTheWindows);
    EXPECT_EQ(journal.value(untilTheWindows.size()), u"onboarding_started"_s);
    EXPECT_EQ(journal.value(untilTheWindows.size() + 1), u"make Welcome to Tessaline"_s);
    EXPECT_TRUE(journal.contains(u"show Welcome to Tessaline"_s));
    EXPECT_FALSE(journal.contains(u"show Tessaline"_s));
}

} // namespace
} // namespace tessaline
