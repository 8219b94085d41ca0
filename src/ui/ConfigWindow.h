#pragma once

#include "settings/SourceType.h"
#include "ui/WindowPorts.h"

#include <QWidget>

#include <functional>

namespace tessaline {

class AppSettings;
class ScreenManager;
class SourceManager;

/// The settings window. Edits the shared settings live: every change is saved and announced at
/// once. Main thread only.
class ConfigWindow : public QWidget {
    Q_OBJECT

public:
    /// Builds the window; shows nothing yet. Everything is borrowed; `sourceManager` may be null.
    ConfigWindow(AppSettings& settings, SourceManager* sourceManager, const WindowPorts& ports);
    ~ConfigWindow() override;

    /// The displays to choose from; null: only the automatic choice is offered. Borrowed.
    void setScreenManager(ScreenManager* manager) { screenManager = manager; }

    /// Shows in all controls what the settings say now.
    void refreshUI();

    /// Looks every 2 seconds after the plug-in and the permission, until the window closes.
    void startPeriodicRefresh();

    /// Lists the displays that are attached now.
    void rebuildScreenPopup();

    /// Shows whether the Accessibility permission is granted.
    void updateAccessibilityStatus();

    /// Called after every saved change.
    std::function<void()> onSettingsChanged;

    /// Called with the new source after the user chose another one.
    std::function<void(SourceType)> onSourceChanged;

private:
    AppSettings& settings;
    SourceManager* sourceManager;
    WindowPorts ports;
    ScreenManager* screenManager = nullptr;
};

} // namespace tessaline
