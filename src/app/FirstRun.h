#pragma once

#include "platform/Lifetime.h"

#include <functional>
#include <memory>

namespace tessaline {

class AppSettings;
class OnboardingWindow;
class PermissionManager;
class SourceManager;
struct Platform;
struct Services;

/// The life of the first-run window, with what the desktop sees of the program meanwhile.
class FirstRun {
public:
    /// Shows the window. `finished` is called once, when the user is done with it. Borrows the
    /// rest.
    FirstRun(PermissionManager& permissions, AppSettings& settings, SourceManager& sources,
             const Platform& platform, const Services& services, std::function<void()> finished);
    ~FirstRun();

    /// Whether the user is not done with it yet.
    bool isUp() const { return window != nullptr; }

    /// Brings the window to the front, which is up.
    void reveal();

private:
    void finish();

    const Platform& platform;
    const std::function<void()> whenFinished;
    std::unique_ptr<OnboardingWindow> window;
    std::unique_ptr<OnboardingWindow> finishedWindow; ///< until its call has returned
    Lifetime lifetime;
};

} // namespace tessaline
