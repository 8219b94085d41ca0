#pragma once

#include "platform/Lifetime.h"
#include "platform/NotificationCenter.h"
#include "platform/TimerMaker.h"
#include "settings/SourceType.h"
#include "ui/Services.h"

#include <QWidget>

#include <functional>
#include <map>
#include <memory>

class QLabel;
class QPushButton;

namespace tessaline {

class AppSettings;
class IntegrationToggleView;
class PermissionManager;
class PermissionStatusView;
class SourceManager;
struct Platform;
struct ObsidianStatusText;

/// The first-run window: greets the user, offers the one optional permission and the Obsidian
/// integration, and ends with "Get Started".
class OnboardingWindow : public QWidget {
    Q_OBJECT

public:
    /// Builds the window, resets the source choice to the clipboard, clears a stale entry for the
    /// permission and polls the permission from now on; shows nothing yet. Everything is borrowed;
    /// `sourceManager` may be null.
    OnboardingWindow(PermissionManager& permissionManager, AppSettings& settings,
                     SourceManager* sourceManager, const Platform& platform,
                     const Services& services);
    ~OnboardingWindow() override;

    /// Called once when the user finishes, just before the window closes.
    std::function<void()> onComplete;

    /// What its owner does for a user who skips; the window itself never calls it.
    std::function<void()> onSkip;

Q_SIGNALS:
    /// The user closed the window without finishing. Comes once.
    void closedUnfinished();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void resetSourceChoice();
    void setupUI();
    QWidget* createContent();
    QWidget* createFooter();
    QLabel* createSectionLabel(const QString& text);
    QWidget* createIntegrationsSection();
    PermissionStatusView* createAccessibilityStatusView();
    ObsidianStatusText pluginStatus() const;
    bool isObsidianEnabled() const;
    void centerOnScreen();
    void setupPermissionObserver();
    void updatePermissionStatus();
    void toggleObsidian(bool enabled);
    void installObsidianPlugin();
    void updateIntegrationStatuses();
    void continueClicked();

    PermissionManager& permissionManager;
    AppSettings& settings;
    SourceManager* sourceManager;
    const Platform& platform;
    Services services;
    QLabel* titleLabel = nullptr;
    QLabel* subtitleLabel = nullptr;
    PermissionStatusView* accessibilityStatusView = nullptr;
    std::map<SourceType, IntegrationToggleView*> integrationToggles;
    QPushButton* continueButton = nullptr;
    std::unique_ptr<RepeatingTimer> reportTimer;
    NotificationCenter::Observation permissionObserver;
    bool finished = false; ///< finished, or closed without
    Lifetime lifetime;
};

} // namespace tessaline
