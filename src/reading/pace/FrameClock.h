#pragma once

#include "platform/DisplayLink.h"
#include "platform/Lifetime.h"
#include "platform/TimerMaker.h"
#include "reading/Clocks.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace tessaline {

class MainQueue;

/// Calls back on the main thread for every frame of the display, or, where there is no display
/// link, sixty times a second.
class FrameClock {
public:
    /// Hears how many seconds have passed since the frame before.
    using OnFrame = std::function<void(double seconds)>;

    /// Borrows the makers and the queue.
    FrameClock(DisplayLinkMaker& links, TimerMaker& timers, MainQueue& queue, Clocks clocks,
               OnFrame onFrame);
    ~FrameClock();
    FrameClock(const FrameClock&) = delete;
    FrameClock& operator=(const FrameClock&) = delete;

    /// Does nothing while it runs.
    void start();
    void stop();
    bool running() const { return isRunning; }

private:
    void tick(std::uint64_t hostTime);
    void deliver();
    void timerFired();

    TimerMaker& timers;
    MainQueue& queue;
    const Clocks clocks;
    const OnFrame onFrame;
    bool isRunning = false;
    std::atomic<std::uint64_t> latestHostTime{0};
    std::atomic<bool> isPosted{false}; ///< frames that came while the main thread was busy are one
    std::optional<std::uint64_t> lastHostTime;
    std::optional<Clocks::TimePoint> lastFiring;
    Lifetime lifetime;
    std::unique_ptr<DisplayLink> link;
    std::unique_ptr<RepeatingTimer> timer;
};

} // namespace tessaline
