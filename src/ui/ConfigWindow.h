#pragma once

#include "permissions/PermissionManager.h"
#include "platform/AccessibilityTrust.h"
#include "settings/AppSettings.h"
#include "settings/SourceType.h"
#include "ui/Services.h"
#include "ui/SideWindow.h"

#include <functional>
#include <memory>

namespace tessaline {

class AccessibilityRow;
class DisplaySection;
class IntegrationsSection;
class ScreenManager;
class SourceManager;
class ShortcutsGrid;
class SourceSection;

/// The settings window. Edits the shared settings live: every change is saved and announced at
/// once. Shows what others change.
class ConfigWindow : public SideWindow {
    Q_OBJECT

public:
    /// Builds the window; shows nothing yet. Everything is borrowed; `sourceManager` may be null.
    ConfigWindow(AppSettings& settings, SourceManager* sourceManager, const Platform& platform,
                 const Services& services);
    ~ConfigWindow() override;

    /// The displays to choose from; null: only the automatic choice is offered. Borrowed. Shows at
    /// the next refresh.
    void setScreenManager(ScreenManager* manager);

    /// Shows in all controls what the settings say now. The window has its right size afterwards.
    void refreshUI();

    /// Looks every 2 seconds after the plug-in and the permission, until the window closes.
    void startPeriodicRefresh();

    /// Lists the displays that are attached now.
    void rebuildScreenPopup();

    /// Shows whether the Accessibility permission is granted. True where that is something else
    /// than it showed before.
    bool updateAccessibilityStatus();

    /// Called after every change by a control of this window, once it is saved and shown.
    std::function<void()> onSettingsChanged;

    /// Called with the new source after the user chose another one.
    std::function<void(SourceType)> onSourceChanged;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void layOut();
    void settingsChanged(const PersistedSettings& before);
    QWidget* createContent();
    void obsidianToggleChanged(bool on);
    void fixAccessibility();
    void announceSettings() const;
    void announceSource(SourceType source) const;

    AppSettings& settings;
    AppSettings::Observation settingsObservation;
    SourceManager* sourceManager;
    const Platform& platform;
    Services services;
    PermissionManager permissionManager;
    std::unique_ptr<RepeatingTimer> refreshTimer;

    IntegrationsSection* integrations = nullptr;
    SourceSection* sources = nullptr;
    DisplaySection* display = nullptr;
    ShortcutsGrid* shortcuts = nullptr;
    AccessibilityRow* accessibility = nullptr;
    AccessibilityTrust::Report shownReport;
};

} // namespace tessaline
