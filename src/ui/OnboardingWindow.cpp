#include "ui/OnboardingWindow.h"

#include "analytics/UsageRecorder.h"
#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/Labels.h"
#include "permissions/PermissionManager.h"
#include "permissions/PermissionReport.h"
#include "platform/AccessibilityTrust.h"
#include "platform/Platform.h"
#include "platform/PlatformTexts.h"
#include "platform/ScreenCoordinates.h"
#include "platform/Screens.h"
#include "settings/AppSettings.h"
#include "sources/ObsidianIntegration.h"
#include "sources/SourceManager.h"
#include "ui/Alert.h"
#include "ui/ObsidianIcon.h"
#include "ui/WindowLook.h"
#include "ui/controls/DefaultButton.h"
#include "ui/controls/FittingScrollArea.h"
#include "ui/controls/Rows.h"
#include "ui/controls/Switch.h"
#include "ui/onboarding/IntegrationToggleView.h"
#include "ui/onboarding/ObsidianStatusText.h"
#include "ui/onboarding/PermissionStatusView.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize leastContent{520, 520};
constexpr double pollInterval = 1.0;
constexpr int sideMargin = 30;

} // namespace

OnboardingWindow::OnboardingWindow(PermissionManager& manager, AppSettings& shared,
                                   SourceManager* sources, const Platform& borrowedPlatform,
                                   const Services& borrowed)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint)
    , permissionManager(manager)
    , settings(shared)
    , sourceManager(sources)
    , platform(borrowedPlatform)
    , services(borrowed) {
    resetSourceChoice();
    permissionManager.resetStaleEntry();

    setWindowTitle(u"Welcome to Tessaline"_s);
    setDarkLook(*this, SystemPalette::windowBackground);
    setupUI();
    setupPermissionObserver();
    permissionManager.startPolling(pollInterval);
}

OnboardingWindow::~OnboardingWindow() {
    permissionManager.stopPolling();
}

/// A fresh start, whatever was chosen in an earlier one.
void OnboardingWindow::resetSourceChoice() {
    if (sourceManager && settings.activeSourceType() != SourceType::clipboard)
        sourceManager->setActiveSource(SourceType::clipboard);
    settings.change([](PersistedSettings& values) {
        values.enabledSourceTypes = {SourceType::clipboard};
        values.activeSourceType = SourceType::clipboard;
    });
}

void OnboardingWindow::setupUI() {
    QWidget* content = createContent();
    fillWithContent(*this, content, leastContent, createFooter());
    continueButton->setFocus();
    centerOnScreen();
}

QWidget* OnboardingWindow::createContent() {
    titleLabel =
        makeLabel(u"Welcome to Tessaline"_s, systemFont(24, QFont::Bold), SystemPalette::label);
    titleLabel->setObjectName(u"onboarding_title"_s);
    titleLabel->setAlignment(Qt::AlignCenter);
    subtitleLabel =
        makeWrappingLabel(platformTexts().subtitle, systemFont(13), SystemPalette::secondaryLabel);
    subtitleLabel->setObjectName(u"onboarding_subtitle"_s);
    subtitleLabel->setAlignment(Qt::AlignCenter);
    subtitleLabel->setContentsMargins(10, 0, 10, 0);
    accessibilityStatusView = createAccessibilityStatusView();

    auto* content = new QWidget;
    QVBoxLayout* column = layOutColumn(*content, 0);
    column->setContentsMargins(sideMargin, 30, sideMargin, 0);
    column->addWidget(titleLabel);
    column->addSpacing(10);
    column->addWidget(subtitleLabel);
    column->addSpacing(20);
    column->addWidget(createSectionLabel(u"Optional Permissions"_s));
    column->addSpacing(8);
    column->addWidget(accessibilityStatusView);
    column->addSpacing(20);
    column->addWidget(createSectionLabel(u"Content Sources"_s));
    column->addSpacing(8);
    column->addWidget(createIntegrationsSection());
    column->addStretch();
    return content;
}

QWidget* OnboardingWindow::createFooter() {
    continueButton = new DefaultButton(u"Get Started"_s, *this);
    continueButton->setObjectName(u"onboarding_continueButton"_s);
    continueButton->setMinimumWidth(120);
    connect(continueButton, &QPushButton::clicked, this, &OnboardingWindow::continueClicked);

    auto* footer = new QWidget;
    QVBoxLayout* column = layOutColumn(*footer, 0);
    column->setContentsMargins(sideMargin, 20, sideMargin, 20);
    column->addWidget(continueButton, 0, Qt::AlignHCenter);
    return footer;
}

QLabel* OnboardingWindow::createSectionLabel(const QString& text) {
    return makeLabel(text, systemFont(12, QFont::DemiBold), SystemPalette::secondaryLabel);
}

PermissionStatusView* OnboardingWindow::createAccessibilityStatusView() {
    auto* view = new PermissionStatusView(
        platformTexts().permissionTitle,
        u"Lets you pause/resume auto-scroll and scroll through text even when Tessaline is not focused."_s,
        permissionReport(*platform.trust));
    view->setObjectName(u"accessibilityStatusView"_s);
    view->onGrantButtonClicked = [this] { permissionManager.resetAndRequestAccessibility(); };
    return view;
}

QWidget* OnboardingWindow::createIntegrationsSection() {
    auto* clipboard = new IntegrationToggleView(SourceType::clipboard, true);
    clipboard->setupUI(true, u"Default — paste any text"_s, {});
    ObsidianStatusText status = pluginStatus();
    status.appFound = services.obsidian.isObsidianPresent();
    status.vaultFound = status.appFound && services.obsidian.findObsidianVault().has_value();
    const bool usable = status.appFound && status.vaultFound;
    auto* obsidian = new IntegrationToggleView(SourceType::obsidian, !usable);
    obsidian->setupUI(usable && status.sourceEnabled, status.text(),
                      obsidianIcon(services.obsidian, *platform.icons));
    obsidian->onToggleChanged = [this](bool on) { toggleObsidian(on); };

    auto* section = new QWidget;
    QVBoxLayout* column = layOutColumn(*section, 8);
    for (IntegrationToggleView* row : {clipboard, obsidian}) {
        row->setObjectName(rawValue(row->sourceType) + u"ToggleView"_s);
        integrationToggles.emplace(row->sourceType, row);
        column->addWidget(row);
    }
    return section;
}

bool OnboardingWindow::isObsidianEnabled() const {
    return settings.isSourceEnabled(SourceType::obsidian);
}

ObsidianStatusText OnboardingWindow::pluginStatus() const {
    ObsidianStatusText status;
    status.sourceEnabled = isObsidianEnabled();
    status.pluginInstalled = status.sourceEnabled && services.obsidian.isPluginInstalled();
    status.pluginEnabled = status.pluginInstalled && services.obsidian.isPluginEnabled();
    return status;
}

void OnboardingWindow::centerOnScreen() {
    const auto display = platform.screens->mainScreen();
    if (!display) return;
    const Rect& visible = display->visibleFrame;
    fitToContent(*this, int(visible.height) - titleBarAllowance);
    const QSizeF whole = size() + QSize(0, titleBarAllowance);
    const QScreen* primary = QGuiApplication::primaryScreen();
    const Rect place{visible.midX() - whole.width() / 2, visible.midY() - whole.height() / 2,
                     whole.width(), whole.height()};
    move(toQtCoordinates(place, primary ? primary->geometry() : QRect()).topLeft());
}

void OnboardingWindow::setupPermissionObserver() {
    permissionObserver =
        platform.notifications->observe(PermissionManager::permissionStatusDidChangeNotification(),
                                        [this](const Notification&) { updatePermissionStatus(); });
    // What there is between yes and no changes without a word.
    if (platform.trust->report())
        reportTimer = platform.timers->every(TimerMaker::Interval(pollInterval),
                                             [this] { updatePermissionStatus(); });
}

void OnboardingWindow::updatePermissionStatus() {
    accessibilityStatusView->updateStatus(permissionReport(*platform.trust));
}

void OnboardingWindow::toggleObsidian(bool enabled) {
    if (sourceManager) {
        sourceManager->setSourceEnabled(SourceType::obsidian, enabled);
    } else {
        settings.setSourceEnabled(SourceType::obsidian, enabled);
    }
    if (enabled) {
        services.recorder.record(
            {.name = u"source_enabled"_s,
             .properties = {{u"source_type"_s, rawValue(SourceType::obsidian)}}});
        installObsidianPlugin();
    }
    updateIntegrationStatuses();
}

void OnboardingWindow::installObsidianPlugin() {
    const auto [success, message] = services.obsidian.installPlugin();
    services.recorder.trackObsidianPluginInstalled(success);
    AlertContent content;
    if (success) {
        content.messageText = u"Notes Bridge Installed"_s;
        content.informativeText = platformTexts().pluginInstalled;
        content.icon = obsidianIcon(services.obsidian, *platform.icons);
    } else {
        content.messageText = u"Plugin Installation"_s;
        content.informativeText = message;
        content.style = AlertContent::Style::warning;
    }
    Alert::beginSheet(*this, content);
}

void OnboardingWindow::updateIntegrationStatuses() {
    const auto found = integrationToggles.find(SourceType::obsidian);
    if (found == integrationToggles.end()) return;
    const ObsidianStatusText status = pluginStatus();
    found->second->showState(status.sourceEnabled, status.textWithVault());
}

void OnboardingWindow::continueClicked() {
    if (finished) return;
    finished = true;
    settings.setHasCompletedOnboarding(true);
    permissionManager.stopPolling();
    services.recorder.trackOnboardingCompleted(platform.trust->isTrusted(), isObsidianEnabled());
    // Whoever is called may drop the window.
    const auto closeIfLeft = lifetime.guard([this] { close(); });
    if (const auto complete = onComplete) complete();
    closeIfLeft();
}

bool OnboardingWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) updatePermissionStatus();
    return QWidget::event(event);
}

void OnboardingWindow::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    if (!std::exchange(finished, true)) Q_EMIT closedUnfinished();
}

} // namespace tessaline
