#pragma once

#include "ui/WindowPorts.h"

#include <QWidget>

#include <functional>

namespace tessaline {

class AppSettings;
class PermissionManager;
class SourceManager;

/// The first-run window: greets the user, offers the one optional permission and the Obsidian
/// integration, and ends with "Get Started". Main thread only.
class OnboardingWindow : public QWidget {
    Q_OBJECT

public:
    /// Builds the window and resets the source choice in the settings to the clipboard; shows
    /// nothing yet. Everything is borrowed; `sourceManager` may be null.
    OnboardingWindow(PermissionManager& permissionManager, AppSettings& settings,
                     SourceManager* sourceManager, const WindowPorts& ports);
    ~OnboardingWindow() override;

    /// Called once when the user finishes; may destroy nothing of the window itself.
    std::function<void()> onComplete;

    /// Called when the user closes the window without finishing.
    std::function<void()> onSkip;

private:
    PermissionManager& permissionManager;
    AppSettings& settings;
    SourceManager* sourceManager;
    WindowPorts ports;
};

} // namespace tessaline
