#pragma once

#include <QDateTime>

#include <chrono>
#include <functional>

namespace tessaline {

/// What time it is, for what depends on it. Main thread.
struct Clocks {
    using TimePoint = std::chrono::steady_clock::time_point;

    std::function<TimePoint()> steady = &std::chrono::steady_clock::now;
    std::function<QDateTime()> wall = [] { return QDateTime::currentDateTime(); };
};

} // namespace tessaline
