#include "reading/Stopwatch.h"

namespace tessaline {

void Stopwatch::start(Clocks::TimePoint now) {
    if (!started) started = now;
}

void Stopwatch::stop(Clocks::TimePoint now) {
    stopped = seconds(now);
    started.reset();
}

void Stopwatch::reset(Clocks::TimePoint now) {
    stopped = 0.0;
    if (started) started = now;
}

double Stopwatch::seconds(Clocks::TimePoint now) const {
    const auto running = started ? now - *started : Clocks::TimePoint::duration::zero();
    return stopped + std::chrono::duration<double>(running).count();
}

} // namespace tessaline
