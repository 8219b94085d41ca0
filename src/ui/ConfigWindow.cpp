#include "ui/ConfigWindow.h"

#include "analytics/UsageRecorder.h"
#include "permissions/PermissionReport.h"
#include "platform/Platform.h"
#include "settings/AppSettings.h"
#include "sources/ObsidianIntegration.h"
#include "sources/SourceManager.h"
#include "ui/WindowLook.h"
#include "ui/config/AccessibilityRow.h"
#include "ui/config/DisplaySection.h"
#include "ui/config/IntegrationsSection.h"
#include "ui/config/ShortcutsGrid.h"
#include "ui/config/SourceSection.h"
#include "ui/controls/Rows.h"
#include "ui/controls/SectionTitle.h"
#include "ui/controls/Separator.h"

#include <QCloseEvent>
#include <QPushButton>

#include <initializer_list>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize leastContent{320, 380};
constexpr int margin = 20;
constexpr int spacing = 10;
constexpr TimerMaker::Interval refreshInterval{2.0};

} // namespace

ConfigWindow::ConfigWindow(AppSettings& edited, SourceManager* manager,
                           const Platform& borrowedPlatform, const Services& borrowed)
    : SideWindow(u"Settings"_s)
    , settings(edited)
    , sourceManager(manager)
    , platform(borrowedPlatform)
    , services(borrowed)
    , permissionManager(platform) {
    layOut();
    settingsObservation =
        settings.observe([this](const PersistedSettings& before) { settingsChanged(before); });
}

ConfigWindow::~ConfigWindow() = default;

void ConfigWindow::layOut() {
    fillWithContent(*this, createContent(), leastContent);
    rebuildScreenPopup();
    display->updateValueLabels();
    sources->updateSourceConfigVisibility();
    updateAccessibilityStatus();
}

QWidget* ConfigWindow::createContent() {
    integrations = new IntegrationsSection(settings, services, *platform.icons);
    connect(integrations, &IntegrationsSection::obsidianToggled, this,
            &ConfigWindow::obsidianToggleChanged);
    sources = new SourceSection(settings, sourceManager, services.notes);
    connect(sources, &SourceSection::sourceChanged, this, &ConfigWindow::announceSource);
    display = new DisplaySection(settings, *platform.screens, services.recorder);
    connect(display, &DisplaySection::settingsChanged, this, &ConfigWindow::announceSettings);
    connect(display, &DisplaySection::sliderReleased, this, &ConfigWindow::announceSize);
    shortcuts = new ShortcutsGrid;
    accessibility = new AccessibilityRow;
    connect(accessibility, &AccessibilityRow::fixPressed, this, &ConfigWindow::fixAccessibility);

    auto* content = new QWidget;
    QVBoxLayout* column = layOutColumn(*content, spacing);
    column->setContentsMargins(margin, margin, margin, margin);
    for (QWidget* part : std::initializer_list<QWidget*>{
             new SectionTitle(u"Enabled Integrations"_s), integrations,
             new Separator(settingsColumnWidth), sources, new Separator(settingsColumnWidth),
             new SectionTitle(u"Display"_s), display, new Separator(settingsColumnWidth),
             new SectionTitle(u"Shortcuts"_s), shortcuts, accessibility})
        column->addWidget(part);
    column->addStretch();
    return content;
}

void ConfigWindow::setScreenManager(ScreenManager* manager) {
    display->setScreenManager(manager);
}

// Whoever changed them: what a control of ours changed it shows already.
void ConfigWindow::settingsChanged(const PersistedSettings& before) {
    display->showSettings();
    integrations->showSettings();
    if (before.enabledSourceTypes != settings.enabledSourceTypes()) {
        sources->rebuildSourcePopup();
    } else {
        sources->selectActiveSource();
        sources->updateSourceConfigVisibility();
    }
}

void ConfigWindow::refreshUI() {
    display->showSettings();
    integrations->showSettings();
    integrations->updateObsidianStatus();
    sources->rebuildSourcePopup();
    rebuildScreenPopup();
    updateAccessibilityStatus();
    fitToContent(*this);
}

void ConfigWindow::startPeriodicRefresh() {
    refreshTimer.reset();
    refreshTimer = platform.timers->every(refreshInterval, [this] {
        integrations->refreshObsidianStatus();
        const bool isOther = updateAccessibilityStatus();
        if (isOther) fitToContent(*this);
    });
}

void ConfigWindow::rebuildScreenPopup() {
    display->rebuildScreenPopup();
}

bool ConfigWindow::updateAccessibilityStatus() {
    const auto report = permissionReport(*platform.trust);
    accessibility->updateStatus(report);
    shortcuts->showReach(report);
    return std::exchange(shownReport, report) != report;
}

void ConfigWindow::obsidianToggleChanged(bool on) {
    if (sourceManager) sourceManager->setSourceEnabled(SourceType::obsidian, on);
    services.recorder.record({.name = on ? u"source_enabled"_s : u"source_disabled"_s,
                              .properties = {{u"source_type"_s, rawValue(SourceType::obsidian)}}});
    integrations->updateObsidianStatus();
    sources->rebuildSourcePopup();
    if (on) {
        if (!services.obsidian.isPluginInstalled()) integrations->reinstallObsidianPlugin();
        return;
    }
    sources->selectActiveSource();
    sources->updateSourceConfigVisibility();
    announceSource(settings.activeSourceType());
}

void ConfigWindow::announceSettings() const {
    if (onSettingsChanged) onSettingsChanged();
}

void ConfigWindow::announceSource(SourceType source) const {
    if (onSourceChanged) onSourceChanged(source);
}

void ConfigWindow::fixAccessibility() {
    permissionManager.resetAndRequestAccessibility();
}

bool ConfigWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) updateAccessibilityStatus();
    return SideWindow::event(event);
}

void ConfigWindow::closeEvent(QCloseEvent* event) {
    refreshTimer.reset();
    SideWindow::closeEvent(event);
}

} // namespace tessaline
