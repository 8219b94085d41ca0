#pragma once

#include <QSocketNotifier>

#include <functional>

namespace tessaline {

/// Turns the signals that ask a program to stop (SIGTERM, SIGINT, SIGHUP) into a call on the main
/// thread. The second one of a kind ends the program at once. A signal that whoever started the
/// program had switched off, as nohup does, stays switched off. One at a time.
class StopSignals {
public:
    /// Calls `stop` for every signal from now on.
    explicit StopSignals(std::function<void()> stop);
    /// Gives the signals the effect back that they had.
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

private:
    QSocketNotifier arrived;
};

} // namespace tessaline
