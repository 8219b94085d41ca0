#include "platform/qt/QtTimerMaker.h"

#include "support/WaitUntil.h"

#include <gmock/gmock.h>

#include <memory>
#include <thread>
#include <vector>

namespace tessaline {
namespace {

using Clock = std::chrono::steady_clock;
using Seconds = TimerMaker::Interval;

TEST(QtTimerMaker, FiresFirstAfterOneInterval) {
    constexpr Seconds interval{0.05};
    QtTimerMaker timers;
    bool fired = false;
    const auto start = Clock::now();
    const auto timer = timers.every(interval, [&] { fired = true; });
    EXPECT_FALSE(fired);
    ASSERT_TRUE(waitUntil([&] { return fired; }));
    EXPECT_GE(Seconds(Clock::now() - start), interval - Seconds{0.001});
}

TEST(QtTimerMaker, LeavesOutTheFiringsThatTheLoopWasTooBusyFor) {
    constexpr Seconds interval{0.05};
    QtTimerMaker timers;
    int firings = 0;
    const auto start = Clock::now();
    const auto timer = timers.every(interval, [&] { ++firings; });
    std::this_thread::sleep_for(4.5 * interval);
    ASSERT_TRUE(waitUntil([&] { return firings == 2; }));
    // One firing came late for all that were missed; the next one waited for its time.
    EXPECT_GE(Seconds(Clock::now() - start), 5 * interval - Seconds{0.002});
}

TEST(QtTimerMaker, StopsWithItsTimer) {
    QtTimerMaker timers;
    int stoppedFirings = 0;
    int firings = 0;
    auto stopped = timers.every(Seconds{0.001}, [&] { ++stoppedFirings; });
    const auto running = timers.every(Seconds{0.002}, [&] { ++firings; });
    stopped.reset();
    ASSERT_TRUE(waitUntil([&] { return firings >= 5; }));
    EXPECT_EQ(stoppedFirings, 0);
}

TEST(QtTimerMaker, LetsTheActionDestroyItsTimer) {
    QtTimerMaker timers;
    std::unique_ptr<RepeatingTimer> timer;
    std::vector<int> captured(1000, 7);
    int firings = 0;
    timer = timers.every(Seconds{0.001}, [&firings, &timer, captured] {
        timer.reset();
        firings += captured.back();
    });
    ASSERT_TRUE(waitUntil([&] { return firings > 0; }));
    EXPECT_EQ(timer, nullptr);
    EXPECT_EQ(firings, 7);
}

} // namespace
} // namespace tessaline
