#include "platform/qt/QtTimerMaker.h"

#include "platform/FiringGrid.h"

#include <QTimer>

#include <utility>

namespace tessaline {

namespace {

using Clock = std::chrono::steady_clock;
using Interval = TimerMaker::Interval;

// A coarse timer may be late by a twentieth, which nobody notices in a poll and everybody in
// motion.
constexpr Interval longestPreciseInterval{0.1};

class QtRepeatingTimer final : public RepeatingTimer {
public:
    QtRepeatingTimer(Interval interval, std::function<void()> onFire)
        : grid(interval), action(std::make_shared<std::function<void()>>(std::move(onFire))) {
        timer.setSingleShot(true);
        timer.setTimerType(interval <= longestPreciseInterval ? Qt::PreciseTimer : Qt::CoarseTimer);
        timer.callOnTimeout([this] { fire(); });
        schedule();
    }

private:
    void schedule() { timer.start(grid.waitForNext(Clock::now() - start)); }

    void fire() {
        schedule();
        // The action may destroy this timer, and itself with it.
        const auto running = action;
        (*running)();
    }

    const Clock::time_point start = Clock::now();
    FiringGrid grid;
    std::shared_ptr<std::function<void()>> action;
    QTimer timer;
};

} // namespace

std::unique_ptr<RepeatingTimer> QtTimerMaker::every(Interval interval,
                                                    std::function<void()> action) {
    return std::make_unique<QtRepeatingTimer>(interval, std::move(action));
}

} // namespace tessaline
