#pragma once

#include "platform/TimerMaker.h"

#include <functional>
#include <memory>
#include <vector>

namespace tessaline {

/// Timer maker whose time passes when the test says so.
class FakeTimerMaker final : public TimerMaker {
public:
    FakeTimerMaker();
    ~FakeTimerMaker() override;

    std::unique_ptr<RepeatingTimer> every(Interval interval, std::function<void()> action) override;

    /// Lets time pass and fires the timers that fall due, in order of their due times.
    void advance(double seconds);

    /// The intervals, in seconds, of the timers that still exist, in the order of their making.
    std::vector<double> liveIntervals() const;

private:
    struct Schedule;
    class Timer;

    std::shared_ptr<Schedule> nextDueBy(double time) const;

    double now = 0.0;
    std::vector<std::weak_ptr<Schedule>> schedules;
};

} // namespace tessaline
