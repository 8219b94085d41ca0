#pragma once

#include "platform/Lifetime.h"

#include <memory>

namespace tessaline {

class DisplayLinkMaker;
class DisplayLinkScrollerDelegate;
class MainQueue;
class RepeatingTimer;
class TimerMaker;

/// Produces scroll distances from a 60 Hz timer, for where no display link can be had.
class TimerScroller {
public:
    /// All three must outlive the engine. Distances come with a display-link engine made for that
    /// one call, hence `links`.
    TimerScroller(TimerMaker& timers, MainQueue& queue, DisplayLinkMaker& links);
    ~TimerScroller();
    TimerScroller(const TimerScroller&) = delete;
    TimerScroller& operator=(const TimerScroller&) = delete;

    /// Sets the receiver of the distances, which is held weakly.
    void setDelegate(std::weak_ptr<DisplayLinkScrollerDelegate> receiver);

    /// Begins to scroll. Does nothing while running.
    void start();

    /// Ends scrolling; keeps a distance not yet handed out.
    void stop();

    /// Sets the speed in points per second; 0 and less produce nothing. 20 at first.
    void updatePixelsPerSecond(double value);

    /// Whether the engine has been started.
    bool running() const { return timer != nullptr; }

private:
    void tick();
    void deliver(double deltaY);

    TimerMaker& timerMaker;
    MainQueue& mainQueue;
    DisplayLinkMaker& linkMaker;
    std::weak_ptr<DisplayLinkScrollerDelegate> delegate;
    double pixelsPerSecond = 20.0;
    double scrollRemainder = 0.0;

    Lifetime lifetime;
    std::unique_ptr<RepeatingTimer> timer;
};

} // namespace tessaline
