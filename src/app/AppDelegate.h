#pragma once

#include "app/Environment.h"
#include "app/ReadingUsage.h"
#include "permissions/PermissionManager.h"
#include "platform/Lifetime.h"
#include "platform/NotificationCenter.h"
#include "reading/PrompterStatus.h"
#include "screens/ScreenManager.h"
#include "settings/AppSettings.h"
#include "settings/ReadingSettings.h"
#include "settings/SourceType.h"

#include <QString>

#include <functional>
#include <memory>

namespace tessaline {

class ConfigPanel;
class ConfigWindow;
class FirstRun;
class PrompterCutout;
class PrompterWindow;
class ReadingPanel;
class RemotePage;
class Remotes;
class ScriptIntake;
class ScriptOpening;
class Shortcuts;
class SettingChoices;
class SourceManager;
class StatusItem;
struct Services;

/// The root of the running program: owns the settings, the managers and the windows, and wires them
/// to one another. An action before the launch is a programming error and ends the program.
class AppDelegate {
public:
    /// Loads the settings; shows nothing yet.
    explicit AppDelegate(const Environment& environment);
    ~AppDelegate();
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    /// Builds everything and shows the prompter or, the first time, the first-run window.
    void applicationDidFinishLaunching();
    /// Records the end of the program.
    void applicationWillTerminate();
    /// The program goes on without a window.
    static constexpr bool applicationShouldTerminateAfterLastWindowClosed() { return false; }

    // What the status menu and the prompter's buttons do.
    void showPrompterWindow();
    void hidePrompterWindow();
    void toggleMinimize();
    void toggleScroll();
    void cycleSource();
    void showConfig();
    void showReading();
    void quitApp() { environment.terminate(); }

    // What the shortcuts and remote control do besides.
    void performScroll(double deltaY);
    void pasteFromClipboard();
    /// Where scripts are handed in. Before the normal start and while the first-run window is up,
    /// it keeps the last one until then.
    ScriptIntake& scripts() const;
    /// The same for scripts in files.
    ScriptOpening& opening() const;

    /// What is chosen otherwise than in the settings window.
    SettingChoices& choices() const;
    QString takeSuggestedSize(); ///< of the text; says which and why

    /// The page for phones, once the normal start has happened.
    RemotePage& remotePage() const;

    /// Whether the normal start has happened: the first-run window is done with.
    bool hasStarted() const { return shortcuts != nullptr; }
    const AppSettings& currentSettings() const { return settings; }
    ReadingSettings& reading() { return readingSettings; }
    PrompterWindow& prompter() const;
    PrompterStatus status() const;

    /// Brings to the front what the user works with: the prompter or the first-run window.
    void reveal();

private:
    void createSourceManager();
    void createPrompterWindow();
    void createPanels();
    void setupStatusItem();
    void configureTelemetry();
    void startApp();
    void setupShortcuts();

    void showContent(const QString& content);
    void screensChanged();
    void chooseSource(SourceType source);
    void handleSourceChange(SourceType source);
    void activeSourceChanged(const Notification& change);
    void settingsChanged();
    void repositionWindows();

    Services services() const;
    ConfigWindow& config() const;
    SourceManager& sources() const;

    /// A call of the member function that does nothing once the delegate is gone.
    template <typename... Arguments>
    std::function<void(Arguments...)> weakly(void (AppDelegate::*action)(Arguments...)) {
        return lifetime.guard(std::bind_front(action, this));
    }

    Environment environment;
    const Platform& platform;
    AppSettings settings;
    ReadingSettings readingSettings;
    ReadingUsage readingUsage;
    ScreenManager screenManager;
    PermissionManager permissionManager;
    std::unique_ptr<SourceManager> sourceManager;
    std::unique_ptr<ScriptIntake> scriptIntake;
    std::unique_ptr<PrompterWindow> prompterWindow;
    std::unique_ptr<PrompterCutout> prompterCutout;
    std::unique_ptr<ScriptOpening> scriptOpening;
    std::unique_ptr<SettingChoices> settingChoices;
    std::unique_ptr<ConfigPanel> configPanel;
    std::unique_ptr<ReadingPanel> readingPanel;
    std::unique_ptr<FirstRun> firstRun; ///< where there is one
    std::unique_ptr<StatusItem> statusItem;
    std::unique_ptr<Shortcuts> shortcuts;
    std::unique_ptr<Remotes> remotes;
    NotificationCenter::Observation sourceChangeObserver;
    Lifetime lifetime;
};

} // namespace tessaline
