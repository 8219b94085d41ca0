#include "support/FakeTimerMaker.h"

#include <utility>

namespace tessaline {

struct FakeTimerMaker::Schedule {
    double start;
    double interval;
    std::function<void()> action;
    int firings = 0;

    // A product, not a running sum, so that sixty sixtieths make a second.
    double due() const { return start + (firings + 1) * interval; }
};

class FakeTimerMaker::Timer final : public RepeatingTimer {
public:
    explicit Timer(std::shared_ptr<Schedule> timerSchedule) : schedule(std::move(timerSchedule)) {}

private:
    const std::shared_ptr<Schedule> schedule;
};

FakeTimerMaker::FakeTimerMaker() = default;
FakeTimerMaker::~FakeTimerMaker() = default;

std::unique_ptr<RepeatingTimer> FakeTimerMaker::every(Interval interval,
                                                      std::function<void()> action) {
    auto schedule = std::make_shared<Schedule>(Schedule{now, interval.count(), std::move(action)});
    schedules.push_back(schedule);
    return std::make_unique<Timer>(std::move(schedule));
}

void FakeTimerMaker::advance(double seconds) {
    const double end = now + seconds;
    while (const auto schedule = nextDueBy(end)) {
        now = schedule->due();
        ++schedule->firings;
        schedule->action();
    }
    now = end;
}

std::vector<double> FakeTimerMaker::liveIntervals() const {
    std::vector<double> intervals;
    for (const auto& candidate : schedules) {
        if (const auto schedule = candidate.lock()) intervals.push_back(schedule->interval);
    }
    return intervals;
}

std::shared_ptr<FakeTimerMaker::Schedule> FakeTimerMaker::nextDueBy(double time) const {
    std::shared_ptr<Schedule> next;
    for (const auto& candidate : schedules) {
        const auto schedule = candidate.lock();
        const bool isDue = schedule && schedule->due() <= time;
        if (isDue && (!next || schedule->due() < next->due())) next = schedule;
    }
    return next;
}

} // namespace tessaline
