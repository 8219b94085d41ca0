#include "app/FirstRun.h"

#include "analytics/UsageRecorder.h"
#include "app/WindowOrder.h"
#include "platform/ActivationPolicy.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "ui/OnboardingWindow.h"
#include "ui/Services.h"

#include <utility>

namespace tessaline {

FirstRun::FirstRun(PermissionManager& permissions, AppSettings& settings, SourceManager& sources,
                   const Platform& borrowed, const Services& services,
                   std::function<void()> finished)
    : platform(borrowed), whenFinished(std::move(finished)) {
    platform.activationPolicy->set(ActivationPolicy::Kind::regular);
    services.recorder.trackOnboardingStarted();
    window =
        std::make_unique<OnboardingWindow>(permissions, settings, &sources, platform, services);
    window->onComplete = lifetime.guard([this] { finish(); });
    window->onSkip = window->onComplete;
    // Closing the window unfinished is skipping; it comes back at the next start.
    QObject::connect(window.get(), &OnboardingWindow::closedUnfinished, window->onSkip);
    reveal();
}

FirstRun::~FirstRun() = default;

void FirstRun::reveal() {
    makeKeyAndOrderFront(*window);
    platform.activationPolicy->activateIgnoringOtherApps();
}

void FirstRun::finish() {
    if (!window) return;
    // The window is calling: it goes once that call is over.
    finishedWindow = std::move(window);
    finishedWindow->hide();
    platform.mainQueue->post(lifetime.guard([this] { finishedWindow.reset(); }));
    platform.activationPolicy->set(ActivationPolicy::Kind::accessory);
    whenFinished();
}

} // namespace tessaline
