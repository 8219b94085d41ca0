#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace tessaline {

/// A timer that fires on the main thread until it is destroyed.
class RepeatingTimer {
public:
    virtual ~RepeatingTimer() = default;
};

/// Makes repeating timers.
class TimerMaker {
public:
    using Interval = std::chrono::duration<double>;

    virtual ~TimerMaker() = default;

    /// A running timer whose first firing is one interval away.
    virtual std::unique_ptr<RepeatingTimer> every(Interval interval,
                                                  std::function<void()> action) = 0;
};

} // namespace tessaline
