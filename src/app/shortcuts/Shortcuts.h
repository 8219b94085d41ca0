#pragma once

#include "app/shortcuts/EventTapLife.h"
#include "platform/EventTap.h"
#include "platform/GlobalKeyMonitor.h"
#include "platform/Lifetime.h"
#include "platform/LocalKeyMonitor.h"
#include "platform/TimerMaker.h"

#include <functional>
#include <memory>

namespace tessaline {

class UsageRecorder;
struct Platform;

/// Keyboard shortcuts and pointer gestures that drive the prompter, in windows of ours and, while
/// the system allows it, in those of other applications. But for a tap that the system switched off
/// and keeps off, nothing that was set up is removed before this object goes away.
class Shortcuts {
public:
    static constexpr double shortcutScrollStep = 40.0;       ///< points per Control + arrow key
    static constexpr double shortcutScrollMultiplier = 80.0; ///< points per line of a wheel

    /// What the shortcuts do. Those for keys run at once, those for the pointer from the main
    /// queue.
    struct Actions {
        std::function<void(double deltaY)> performScroll; ///< points; positive is up
        std::function<void()> toggleScroll;
        std::function<void()> paste;
    };

    /// Borrows the platform and the recorder.
    Shortcuts(const Platform& platform, UsageRecorder& recorder, Actions actions);
    ~Shortcuts();
    Shortcuts(const Shortcuts&) = delete;
    Shortcuts& operator=(const Shortcuts&) = delete;

    /// Starts everything: the local keys, the global ones once the permission is there, and the
    /// poll that watches the permission. Call it once.
    void setupShortcuts();

    /// Acts on a key that is typed in a window of ours. True when it was used.
    bool handleKeyDown(const KeyEvent& key);

private:
    void pollAccessibility();
    void trySetupGlobalShortcuts();
    void handleGlobalKeyDown(const KeyEvent& key);
    void toggleScroll(const KeyEvent& key);
    void setupGlobalScrollEventTap();
    EventTap::Verdict handleScrollEventTap(const TapEvent& event);
    EventTap::Verdict scrollLater(const TapEvent& event);
    EventTap::Verdict toggleLater();

    const Platform& platform;
    UsageRecorder& recorder;
    const Actions actions;
    Lifetime lifetime;
    bool lastKnownAccessibilityState = false;
    bool tapFailureReported = false;
    std::unique_ptr<LocalKeyMonitor::Registration> localMonitor;
    std::unique_ptr<GlobalKeyMonitor::Registration> globalMonitor;
    EventTapLife scrollEventTap;
    std::unique_ptr<RepeatingTimer> accessibilityPollTimer;
};

} // namespace tessaline
