#pragma once

#include "reading/Clocks.h"

#include <optional>

namespace tessaline {

/// Adds up the times in which it runs.
class Stopwatch {
public:
    /// Does nothing while it runs.
    void start(Clocks::TimePoint now);

    void stop(Clocks::TimePoint now);

    /// Back to 0; goes on running if it does.
    void reset(Clocks::TimePoint now);

    double seconds(Clocks::TimePoint now) const;

private:
    double stopped = 0.0;
    std::optional<Clocks::TimePoint> started;
};

} // namespace tessaline
