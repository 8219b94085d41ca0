#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <chrono>

namespace tessaline {

/// Runs the event loop until `condition` holds. False when it does not within half a minute.
template <typename Condition>
bool waitUntil(Condition condition) {
    using namespace std::chrono_literals;
    const QDeadlineTimer deadline(30s);
    while (!condition()) {
        if (deadline.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    return true;
}

} // namespace tessaline
