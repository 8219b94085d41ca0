#pragma once

#include "render/engines/DisplayLinkScroller.h"
#include "render/engines/TimerScroller.h"

#include <functional>
#include <memory>
#include <optional>

namespace tessaline {

class AppSettings;
class DisplayLinkScrollerDelegate;

/// The engine that moves the prompter's text: the display's refresh where it can be had, a timer
/// otherwise. Speed and rate come from the settings. Main thread only.
class AutoScroll {
public:
    using PerformScroll = std::function<void(double deltaY)>;

    /// Starts at once if the settings say so. `performScroll` is called on the main thread with
    /// points, negative for forward reading, and only while auto-scroll is enabled. The others are
    /// borrowed.
    AutoScroll(const AppSettings& settings, DisplayLinkMaker& links, TimerMaker& timers,
               MainQueue& queue, PerformScroll performScroll);
    ~AutoScroll();

    /// Takes the speed over from the settings.
    void updateSpeed();

    void start();
    void stop();
    bool running() const;

private:
    const AppSettings& settings;
    std::shared_ptr<DisplayLinkScrollerDelegate> receiver;
    DisplayLinkScroller displayLinkScroller;
    std::optional<TimerScroller> timerScroller;
};

} // namespace tessaline
