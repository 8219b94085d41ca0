#include "ui/config/IntegrationsSection.h"

#include "analytics/UsageRecorder.h"
#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/Labels.h"
#include "settings/AppSettings.h"
#include "sources/ObsidianIntegration.h"
#include "ui/Alert.h"
#include "ui/ObsidianIcon.h"
#include "ui/Services.h"
#include "ui/controls/BezelButton.h"
#include "ui/controls/Rows.h"
#include "ui/controls/StatusDot.h"
#include "ui/controls/Switch.h"

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int iconSize = 20;
constexpr double emojiSize = 16;

} // namespace

IntegrationsSection::IntegrationsSection(const AppSettings& shared, const Services& borrowed,
                                         const FileIcons& fileIcons, QWidget* parent)
    : QWidget(parent)
    , clipboardToggle(new Switch(displayName(SourceType::clipboard)))
    , obsidianToggle(new Switch(displayName(SourceType::obsidian)))
    , settings(shared)
    , services(borrowed)
    , icons(fileIcons) {
    setFixedWidth(settingsColumnWidth);
    clipboardToggle->setObjectName(u"clipboardToggle"_s);
    clipboardToggle->setChecked(true);
    clipboardToggle->setEnabled(false); // this source can never be turned off
    obsidianToggle->setObjectName(u"obsidianToggle"_s);
    connect(obsidianToggle, &Switch::clicked, this, &IntegrationsSection::obsidianToggled);

    QVBoxLayout* column = layOutColumn(*this, 6);
    column->addWidget(createRow(makeIconLabel(u"📋"_s, emojiSize, iconSize),
                                displayName(SourceType::clipboard), clipboardToggle));
    column->addWidget(
        createRow(createObsidianIcon(), displayName(SourceType::obsidian), obsidianToggle));
    column->addWidget(createStatusRow());
    showSettings();
    updateObsidianStatus();
}

QLabel* IntegrationsSection::createObsidianIcon() const {
    if (QLabel* icon = makeObsidianIcon(services.obsidian, icons, iconSize)) return icon;
    return makeIconLabel(u"📄"_s, emojiSize, iconSize);
}

QWidget* IntegrationsSection::createRow(QLabel* icon, const QString& name, Switch* toggle) {
    auto* holder = new QWidget;
    holder->setFixedWidth(settingsColumnWidth);
    QHBoxLayout* row = layOutRow(*holder, 8);
    row->addWidget(icon);
    row->addWidget(makeLabel(name, systemFont(13), SystemPalette::label));
    row->addStretch();
    row->addWidget(toggle);
    return holder;
}

QWidget* IntegrationsSection::createStatusRow() {
    statusRow = new QWidget;
    statusRow->setFixedWidth(settingsColumnWidth);
    obsidianStatusDot = new StatusDot(8);
    obsidianStatusDot->setObjectName(u"obsidianStatusDot"_s);
    auto* dotHolder = new QWidget;
    dotHolder->setFixedSize(iconSize, 8);
    layOutRow(*dotHolder, 0)->addWidget(obsidianStatusDot, 0, Qt::AlignCenter);
    obsidianStatusLabel = makeLabel({}, systemFont(11), SystemPalette::secondaryLabel);
    obsidianStatusLabel->setObjectName(u"obsidianStatusLabel"_s);
    obsidianConfigButton = new BezelButton(u"Reinstall Plugin"_s, 11);
    obsidianConfigButton->setObjectName(u"obsidianConfigButton"_s);
    connect(obsidianConfigButton, &QPushButton::clicked, this,
            &IntegrationsSection::reinstallObsidianPlugin);

    QHBoxLayout* row = layOutRow(*statusRow, 8);
    row->addWidget(dotHolder);
    row->addWidget(obsidianStatusLabel);
    row->addWidget(obsidianConfigButton);
    row->addStretch();
    return statusRow;
}

bool IntegrationsSection::isObsidianEnabled() const {
    return settings.isSourceEnabled(SourceType::obsidian);
}

void IntegrationsSection::showSettings() {
    obsidianToggle->setChecked(isObsidianEnabled());
}

void IntegrationsSection::updateObsidianStatus() {
    ++updates;
    const bool enabled = isObsidianEnabled();
    statusRow->setVisible(enabled);
    obsidianConfigButton->setVisible(enabled);
    if (!enabled) {
        obsidianStatusLabel->clear();
        return;
    }
    showPlugin(services.obsidian.isPluginInstalled(), services.obsidian.isPluginEnabled());
}

void IntegrationsSection::refreshObsidianStatus() {
    if (!isObsidianEnabled()) {
        updateObsidianStatus();
        return;
    }
    if (std::exchange(isLookingUp, true)) return;
    services.obsidian.lookUpPlugin(lifetime.guard([this, asked = updates](const auto& state) {
        isLookingUp = false;
        // An update in the meantime knows better.
        if (updates == asked) showPlugin(state.installed, state.enabled);
    }));
}

void IntegrationsSection::showPlugin(bool installed, bool enabled) {
    const bool active = installed && enabled;
    const QString status = active      ? u"Plugin active"_s
                           : installed ? u"Disabled in Obsidian"_s
                                       : u"Plugin not found"_s;
    obsidianStatusDot->setStatus(active ? SystemPalette::green : SystemPalette::orange, status);
    obsidianStatusLabel->setText(status);
}

void IntegrationsSection::reinstallObsidianPlugin() {
    const auto [success, message] = services.obsidian.installPlugin();
    services.recorder.trackObsidianPluginInstalled(success);
    AlertContent content;
    content.messageText = success ? u"Plugin Reinstalled"_s : u"Installation Failed"_s;
    content.informativeText = message;
    content.style = success ? AlertContent::Style::informational : AlertContent::Style::warning;
    if (success) content.icon = obsidianIcon(services.obsidian, icons);
    Alert::beginSheet(*window(), content);
    updateObsidianStatus();
}

} // namespace tessaline
