#pragma once

#include "support/Part.h"
#include "ui/OnboardingWindow.h"
#include "ui/VisibleSheet.h"
#include "ui/WindowStage.h"
#include "ui/controls/Switch.h"
#include "ui/onboarding/IntegrationToggleView.h"
#include "ui/onboarding/PermissionStatusView.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

#include <memory>

namespace tessaline {

/// A first-run window amid fakes. Change the stage first; the window is built when it is first
/// asked for.
class OnboardingWindowFixture : public testing::Test {
protected:
    OnboardingWindow& window() {
        if (!built) {
            built = std::make_unique<OnboardingWindow>(manager, stage.settings, sourceManager.get(),
                                                       stage.platform, stage.services);
            built->onComplete = [this] { ++completions; };
            QObject::connect(built.get(), &OnboardingWindow::closedUnfinished,
                             [this] { ++closings; });
        }
        return *built;
    }

    OnboardingWindow& shown() {
        window().show();
        return window();
    }

    IntegrationToggleView& row(const char* name) {
        return *window().findChild<IntegrationToggleView*>(QString::fromLatin1(name));
    }
    IntegrationToggleView& obsidian() { return row("obsidianToggleView"); }
    PermissionStatusView& permission() {
        return *window().findChild<PermissionStatusView*>(
            QStringLiteral("accessibilityStatusView"));
    }
    QPushButton& continueButton() {
        return *window().findChild<QPushButton*>(QStringLiteral("onboarding_continueButton"));
    }

    void switchObsidian() {
        QTest::mouseClick(part<Switch>(obsidian(), "toggleSwitch"), Qt::LeftButton);
    }

    Alert* sheet() { return visibleSheet(window()); }

    bool obsidianEnabled() const {
        return AppSettings(stage.configPath).isSourceEnabled(SourceType::obsidian);
    }

    WindowStage stage;
    PermissionManager manager{stage.platform};
    std::unique_ptr<SourceManager> sourceManager;
    int completions = 0;
    int closings = 0;
    std::unique_ptr<OnboardingWindow> built;
};

} // namespace tessaline
