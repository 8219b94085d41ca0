#pragma once

#include <functional>
#include <memory>

namespace tessaline {

class RepeatingTimer;
class TimerMaker;

/// Counts whole seconds down to nothing.
class Countdown {
public:
    /// Borrows the timers. `counted` is called whenever another number is left, also when it is
    /// nothing.
    Countdown(TimerMaker& timers, std::function<void()> counted);
    ~Countdown();

    /// Begins anew with so many seconds.
    void start(int seconds);

    /// Tells nobody.
    void stop();

    /// 0 when nothing is under way.
    int secondsLeft() const { return left; }

private:
    void count();

    TimerMaker& timers;
    const std::function<void()> counted;
    int left = 0;
    std::unique_ptr<RepeatingTimer> timer;
};

} // namespace tessaline
