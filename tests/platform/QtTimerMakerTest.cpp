#include "platform/qt/QtTimerMaker.h"

#include "support/WaitUntil.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <thread>
#include <vector>

namespace tessaline {
namespace {

using Clock = std::chrono::steady_clock;
using Seconds = TimerMaker::Interval;

TEST(QtTimerMaker, AddsUpNoRoundedMilliseconds) {
    constexpr Seconds interval{1.0 / 60.0};
    constexpr std::size_t count = 60;
    constexpr std::size_t stretch = 20;
    QtTimerMaker timers;
    std::vector<Clock::time_point> firings;
    const auto start = Clock::now();
    const auto timer = timers.every(interval, [&] { firings.push_back(Clock::now()); });
    ASSERT_TRUE(waitUntil([&] { return firings.size() >= count; }));
    EXPECT_GE(firings[count - 1] - start, (count - 0.1) * interval);
    // Periods of 17 ms would make every stretch too long. A loaded machine delays some, not all.
    Seconds shortest = 2 * stretch * interval;
    for (std::size_t index = 0; index + stretch < count; ++index) {
        shortest = std::min<Seconds>(shortest, firings[index + stretch] - firings[index]);
    }
    EXPECT_LT(shortest.count(), (stretch * interval).count() + 0.003);
}

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
    const auto gridPosition = [&] { return std::floor(Seconds(Clock::now() - start) / interval); };
    const double missed = gridPosition();
    ASSERT_TRUE(waitUntil([&] { return firings >= 2; }));
    EXPECT_LE(firings, 2 + gridPosition() - missed);
    EXPECT_GE(gridPosition(), missed + 1);
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
