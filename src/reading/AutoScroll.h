#pragma once

#include "reading/PositionSource.h"
#include "render/engines/DisplayLinkScroller.h"
#include "render/engines/TimerScroller.h"

#include <memory>
#include <optional>

namespace tessaline {

class DisplayLinkScrollerDelegate;
class MainQueue;

/// Moves the text at an even speed, with the display's refresh where that can be had and with a
/// timer otherwise.
class AutoScroll : public PositionSource {
public:
    /// The engine hands what it produces to `reader` itself, which is held weakly. The others are
    /// borrowed.
    AutoScroll(std::weak_ptr<DisplayLinkScrollerDelegate> reader, DisplayLinkMaker& links,
               TimerMaker& timers, MainQueue& queue);

    void start() override;
    void stop() override;
    void setPace(const Pace& pace) override;

    bool running() const;

private:
    void fallBackToTimer();

    const std::weak_ptr<DisplayLinkScrollerDelegate> reader;
    DisplayLinkMaker& links;
    TimerMaker& timers;
    MainQueue& queue;
    DisplayLinkScroller displayLinkScroller;
    std::optional<TimerScroller> timerScroller;
    std::optional<double> pointsPerSecond; ///< once it is known
};

} // namespace tessaline
