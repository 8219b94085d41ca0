#pragma once

#include "app/AppDelegate.h"
#include "app/Environment.h"
#include "app/ScriptIntake.h"
#include "settings/AppSettings.h"
#include "settings/SupportFolder.h"

#include "platform/NotificationCenter.h"
#include "support/FakeAccessibilityTrust.h"
#include "support/FakeActivationPolicy.h"
#include "support/FakeBundleInformation.h"
#include "support/FakeDisplayLinkMaker.h"
#include "support/FakeEventTapMaker.h"
#include "support/FakeFileIcons.h"
#include "support/FakeGlobalKeyMonitor.h"
#include "support/FakeLocalKeyMonitor.h"
#include "support/FakeMainQueue.h"
#include "support/FakeNoteLibrary.h"
#include "support/FakeObsidianIntegration.h"
#include "support/FakePasteboard.h"
#include "support/FakeProcessRunner.h"
#include "support/FakeScreens.h"
#include "support/FakeStatusArea.h"
#include "support/FakeTaskRunner.h"
#include "support/FakeTimerMaker.h"
#include "support/FakeWindowTraits.h"
#include "support/RecordingUsageRecorder.h"
#include "support/TestPlatform.h"

#include <gmock/gmock.h>

#include <memory>
#include <vector>

class QAbstractButton;
class QWidget;

namespace tessaline {

class ConfigWindow;
class OnboardingWindow;
class PrompterWindow;

/// A delegate among fakes, in an empty home folder.
class AppDelegateFixture : public ::testing::Test, public TestPlatform {
public:
    ~AppDelegateFixture() override;

protected:
    AppDelegateFixture();

    /// Writes the configuration file that the delegate will find.
    void configure(const std::function<void(PersistedSettings&)>& change);
    /// Constructs the delegate, if that was not done, and launches it.
    AppDelegate& launch();

    /// The windows, null while there are none.
    PrompterWindow* prompter() const;
    ConfigWindow* config() const;
    OnboardingWindow* onboarding() const;

    /// What the settings file says now.
    static AppSettings savedSettings() { return AppSettings(); }
    /// The script of the clipboard source that the next start would find.
    static QString keptScript();
    /// What the prompter's label of the source says.
    QString shownSource() const;
    std::vector<QString> recordedNames() const { return recorder.names(); }
    bool recorded(const QString& name) const;

    FakeObsidianIntegration obsidian;
    FakeNoteLibrary notes;
    RecordingUsageRecorder recorder;
    std::vector<QString> telemetryAppIDs;
    int terminations = 0;

    Environment environment();
    std::unique_ptr<AppDelegate> delegate;
};

} // namespace tessaline
