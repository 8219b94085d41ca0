#pragma once

#include "platform/TimerMaker.h"

namespace tessaline {

/// Timers on Qt's event loop. They keep to a fixed grid of firing times: fractions of a millisecond
/// never add up, and firings that the loop was too busy for are left out.
class QtTimerMaker final : public TimerMaker {
public:
    std::unique_ptr<RepeatingTimer> every(Interval interval, std::function<void()> action) override;
};

} // namespace tessaline
