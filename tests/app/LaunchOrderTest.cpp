#include "AppDelegateFixture.h"

#include "JournalingPorts.h"
#include "sources/SourceManager.h"

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class LaunchOrder : public AppDelegateFixture {
protected:
    void launchAmongWitnesses() {
        const WindowWatcher watcher(journal);
        JournalingRecorder journalingRecorder(journal);
        platform.bundle = std::make_unique<JournalingBundle>(journal);
        platform.statusArea = std::make_unique<JournalingStatusArea>(journal);
        const auto source =
            notifications.observe(SourceManager::activeSourceDidChangeNotification(),
                                  [this](const Notification&) { journal << u"select source"_s; });
        delegate = std::make_unique<AppDelegate>(Environment{
            .platform = platform,
            .obsidian = obsidian,
            .notes = notes,
            .recorder = journalingRecorder,
            .setTelemetryAppID = [this](const QString&) { journal << u"set telemetry id"_s; },
            .terminate = [] {},
        });
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
    configure([](PersistedSettings& settings) { settings.hasCompletedOnboarding = false; });
    launchAmongWitnesses();
    EXPECT_EQ(journal.first(untilTheWindows.size()), untilTheWindows);
    EXPECT_EQ(journal.value(untilTheWindows.size()), u"onboarding_started"_s);
    EXPECT_EQ(journal.value(untilTheWindows.size() + 1), u"make Welcome to Tessaline"_s);
    EXPECT_TRUE(journal.contains(u"show Welcome to Tessaline"_s));
    EXPECT_FALSE(journal.contains(u"show Tessaline"_s));
}

} // namespace
} // namespace tessaline
