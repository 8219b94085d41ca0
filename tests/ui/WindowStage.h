#pragma once

#include "permissions/PermissionManager.h"
#include "platform/NotificationCenter.h"
#include "settings/AppSettings.h"
#include "sources/ClipboardSource.h"
#include "sources/SourceManager.h"
#include "support/FakeAccessibilityTrust.h"
#include "support/FakeBundleInformation.h"
#include "support/FakeContentSource.h"
#include "support/FakeFileIcons.h"
#include "support/FakeMainQueue.h"
#include "support/FakeNoteLibrary.h"
#include "support/FakeObsidianIntegration.h"
#include "support/FakePasteboard.h"
#include "support/FakeProcessRunner.h"
#include "support/FakeScreens.h"
#include "support/FakeTaskRunner.h"
#include "support/FakeTimerMaker.h"
#include "support/RecordingUsageRecorder.h"
#include "support/TestPlatform.h"
#include "ui/Services.h"

#include <QTemporaryDir>

#include <memory>

namespace tessaline {

/// Everything around the settings window and the first-run window, made of fakes: settings in a
/// folder of their own and one display, 1000 points wide, without a name.
class WindowStage : public TestPlatform {
public:
    WindowStage() {
        const Rect frame{0, 0, 1000, 800};
        plugIn(Screen{
            .id = 7, .name = QStringLiteral("Built-in"), .frame = frame, .visibleFrame = frame});
    }

    /// Attaches a display; the first one is the main one.
    void plugIn(const Screen& screen) {
        screens.attached.push_back(screen);
        if (!screens.main) screens.main = screen;
    }

    /// Puts the application with a vault in place, with the plug-in in this state.
    void installObsidian(bool pluginInstalled = false, bool pluginEnabled = false) {
        obsidian.appPath = QStringLiteral("/apps/obsidian");
        obsidian.vault = QStringLiteral("/vault");
        obsidian.pluginInstalled = pluginInstalled;
        obsidian.pluginEnabled = pluginEnabled;
    }

    /// A source manager over the settings as they are now.
    std::unique_ptr<SourceManager> makeSourceManager() {
        return std::make_unique<SourceManager>(
            settings, recorder, notifications, std::make_unique<FakeContentSource>(),
            std::make_unique<ClipboardSource>(pasteboard,
                                              folder.filePath(QStringLiteral("clipboard.md"))));
    }

    /// What a start of the program would find in the settings file.
    AppSettings saved() const { return AppSettings(configPath); }

    /// Lets time pass, with what it makes the program do.
    void pass(double seconds) {
        timers.advance(seconds);
        obsidian.finishLookUps();
        mainQueue.runAll();
    }

    QTemporaryDir folder;
    const QString configPath = folder.filePath(QStringLiteral("config.json"));
    AppSettings settings{configPath};
    RecordingUsageRecorder recorder;
    FakeObsidianIntegration obsidian;
    FakeNoteLibrary notes;
    Services services{recorder, obsidian, notes};
};

} // namespace tessaline
