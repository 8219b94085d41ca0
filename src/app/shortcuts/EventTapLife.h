#pragma once

#include "platform/EventTap.h"
#include "platform/Lifetime.h"

#include <chrono>
#include <memory>
#include <vector>

namespace tessaline {

class MainQueue;

/// The life of one event tap, from the first that the system allows to the last. A tap that the
/// system switches off is switched on again, but neither against the system's will nor for ever:
/// one that insists on seeing input which it may no longer see can take that input from everybody.
/// Main thread; whoever calls says what time it is.
class EventTapLife {
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    /// How often within `window` a tap is switched on again or made anew.
    static constexpr std::size_t mostRevivals = 5;
    static constexpr std::chrono::seconds window{60};

    enum class Attempt {
        unneeded, ///< there is a tap, or it is too early for another one
        made,
        refused ///< the system allows none
    };

    /// Borrows the maker and the queue. The handler gets the events of every tap.
    EventTapLife(EventTapMaker& maker, MainQueue& queue, EventTap::Handler handler);
    ~EventTapLife();
    EventTapLife(const EventTapLife&) = delete;
    EventTapLife& operator=(const EventTapLife&) = delete;

    /// Makes a tap if there is none.
    Attempt makeIfNeeded(TimePoint now);

    /// Drops a tap that is off, which nobody would switch on any more.
    void dropIfOff();

    /// The system switched the tap off: switches it on again if that is still allowed, otherwise
    /// drops it from the main queue, since this is called by the tap itself.
    void switchedOff(TimePoint now);

private:
    bool mayRevive(TimePoint now);

    EventTapMaker& maker;
    MainQueue& queue;
    const EventTap::Handler handler;
    std::unique_ptr<EventTap> tap;
    bool hadOne = false;
    std::vector<TimePoint> revivals; ///< those within the window
    Lifetime lifetime;
};

} // namespace tessaline
