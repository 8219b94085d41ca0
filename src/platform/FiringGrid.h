#pragma once

#include <chrono>

namespace tessaline {

/// When a repeating timer is due: at whole multiples of its interval, so that what is rounded away
/// or comes late at one firing does not move the next ones.
class FiringGrid {
public:
    using Interval = std::chrono::duration<double>;

    /// `interval` is above zero.
    explicit FiringGrid(Interval interval);

    /// How long to wait for the next firing, `elapsed` after the timer's start. Firings that should
    /// have been by then are left out; one that came early is not repeated.
    std::chrono::milliseconds waitForNext(Interval elapsed);

private:
    Interval interval;
    double firings = 0.0; ///< whole; the multiple of the interval that is waited for
};

} // namespace tessaline
