#pragma once

#include "platform/NotificationCenter.h"
#include "prompter/PrompterPorts.h"
#include "screens/ScreenManager.h"
#include "settings/AppSettings.h"
#include "sources/SourceManager.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace tessaline {

class Pasteboard;
class PrompterWindow;
class UsageRecorder;

/// The root of the running program: owns the settings, the managers and the windows, and wires them
/// to one another. Main thread only.
class AppDelegate : public QObject {
public:
    /// What the delegate borrows for its whole life.
    struct Environment {
        PrompterPorts prompter;
        TaskRunner& fileTasks; ///< apart from the prompter's: a hanging read must not hold it up
        Pasteboard& pasteboard;
        UsageRecorder& recorder;
        NotificationCenter& notifications;
    };

    /// Loads the settings; shows nothing yet.
    explicit AppDelegate(const Environment& environment);
    ~AppDelegate() override;

    /// Builds everything and shows the prompter, with this text as if it had been pasted or, if
    /// there is none, with what the active source has.
    void applicationDidFinishLaunching(const std::optional<QString>& text);

private:
    void createPrompter();
    void startApp(const std::optional<QString>& text);
    void pasteFromClipboard();
    void makeClipboardActive();
    void toggleScroll();

    Environment environment;
    AppSettings settings;
    ScreenManager screenManager;
    std::unique_ptr<SourceManager> sourceManager;
    std::unique_ptr<PrompterWindow> prompterWindow;
    NotificationCenter::Observation sourceChangeObserver;
};

} // namespace tessaline
