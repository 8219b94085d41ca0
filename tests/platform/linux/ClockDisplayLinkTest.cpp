#include "platform/linux/ClockDisplayLinkMaker.h"
#include "platform/linux/ThreadUse.h"
#include "support/WaitUntil.h"

#include <pthread.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace tessaline {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

std::uint64_t hostTimeNow() {
    const std::chrono::nanoseconds now = Clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(now.count());
}

// How many periods of a rate a stretch of nanoseconds is.
double periodsIn(std::uint64_t time, double hertz) {
    return static_cast<double>(time) * hertz / 1e9;
}

// These tests watch a real thread on the real clock, hence they sleep. A busy machine may wake the
// thread late, which costs refreshes but never moves them.
class ClockDisplayLinkTest : public ::testing::Test {
protected:
    void makeLink(
        double hertz, std::function<void()> action = [] {}) {
        maker.setRefreshRate(hertz);
        link = maker.make([this, action = std::move(action)](std::uint64_t hostTime) {
            {
                const std::scoped_lock guard(lock);
                times.push_back(hostTime);
                neverEarly = neverEarly && hostTimeNow() >= hostTime;
                thread = currentThread();
            }
            action();
        });
        ASSERT_NE(link, nullptr);
    }

    std::size_t count() const {
        const std::scoped_lock guard(lock);
        return times.size();
    }

    bool waitForMore(std::size_t refreshes) const {
        const std::size_t enough = count() + refreshes;
        return waitUntil([&] { return count() >= enough; });
    }

    // Whether refreshes `first` to `last` were whole periods apart and two of them just one.
    void expectBeat(double hertz, std::size_t first, std::size_t last) const {
        double shortest = 1e9;
        for (std::size_t i = first + 1; i <= last; ++i) {
            ASSERT_GT(times[i], times[i - 1]);
            const double periods = periodsIn(times[i] - times[i - 1], hertz);
            ASSERT_NEAR(periods, std::round(periods), 1e-6) << "refresh " << i << " is off beat";
            shortest = std::min(shortest, periods);
        }
        EXPECT_NEAR(shortest, 1.0, 1e-6);
    }

    mutable std::mutex lock;
    std::vector<std::uint64_t> times;
    bool neverEarly = true;
    int thread = 0;

    ClockDisplayLinkMaker maker;
    std::unique_ptr<DisplayLink> link;
};

TEST_F(ClockDisplayLinkTest, CountsNanoseconds) {
    makeLink(60.0);
    EXPECT_EQ(link->clockFrequency(), 1e9);
}

TEST_F(ClockDisplayLinkTest, CallsBackOncePerRefresh) {
    constexpr double hertz = 60.0;
    makeLink(hertz);
    std::size_t before = 0;
    // As often as it takes for a run that the machine did not disturb.
    const auto runsUndisturbed = [&] {
        before = count();
        const std::uint64_t start = hostTimeNow();
        link->start();
        std::this_thread::sleep_for(250ms);
        link->stop();
        const double due = std::floor(periodsIn(hostTimeNow() - start, hertz));
        const auto wakes = static_cast<double>(count() - before);
        EXPECT_LE(wakes, due);
        return wakes >= 0.9 * due;
    };
    EXPECT_TRUE(waitUntil(runsUndisturbed));
    expectBeat(hertz, before, times.size() - 1);
    EXPECT_TRUE(neverEarly) << "a refresh came before its time";
}

TEST_F(ClockDisplayLinkTest, FollowsItsScreenToAnotherRate) {
    makeLink(60.0);
    link->start();
    ASSERT_TRUE(waitForMore(10));
    maker.setRefreshRate(240.0);
    const std::size_t changed = count();
    ASSERT_TRUE(waitForMore(60));
    link->stop();

    expectBeat(60.0, 0, changed - 1);
    // The refresh that was under way still came at the old rate.
    expectBeat(240.0, changed + 1, times.size() - 1);
    EXPECT_TRUE(neverEarly);
}

TEST_F(ClockDisplayLinkTest, SkipsRefreshesThatItsCallbackSleptThrough) {
    bool stalled = false;
    makeLink(100.0, [&] {
        if (!std::exchange(stalled, true)) std::this_thread::sleep_for(205ms);
    });
    const std::uint64_t start = hostTimeNow();
    link->start();
    ASSERT_TRUE(waitForMore(3));
    link->stop();
    // The next one after the stall is the last that was due by then.
    EXPECT_GE(times[1] - times[0], 200'000'000U);
    EXPECT_LE(static_cast<double>(times.size()), periodsIn(hostTimeNow() - start, 100.0) - 19.0);
}

TEST_F(ClockDisplayLinkTest, IsSilentUntilStarted) {
    makeLink(360.0);
    std::this_thread::sleep_for(50ms);
    EXPECT_EQ(count(), 0U);
}

TEST_F(ClockDisplayLinkTest, CostsNothingWhileStopped) {
    makeLink(360.0);
    link->start();
    ASSERT_TRUE(waitForMore(5));
    link->stop();

    // The thread may still be on its way to sleep.
    ThreadUse before;
    const auto isQuiet = [&] {
        const ThreadUse last = std::exchange(before, threadUse(thread));
        std::this_thread::sleep_for(50ms);
        return before == last;
    };
    ASSERT_TRUE(waitUntil(isQuiet));
    std::this_thread::sleep_for(300ms);
    const ThreadUse after = threadUse(thread);

    EXPECT_GT(before.cpuTime, 0U);
    EXPECT_NE(before.contextSwitches, "");
    EXPECT_EQ(after.contextSwitches, before.contextSwitches);
    EXPECT_EQ(after.cpuTime, before.cpuTime);
}

TEST_F(ClockDisplayLinkTest, WaitsForACallbackInProgressWhenStopped) {
    std::atomic<bool> inside = false;
    makeLink(360.0, [&] {
        inside = true;
        std::this_thread::sleep_for(4ms);
        inside = false;
    });
    int caught = 0;
    EXPECT_TRUE(waitUntil([&] {
        link->start();
        std::this_thread::sleep_for(std::chrono::microseconds(2000 + 150 * (caught % 30)));
        if (inside) ++caught;
        link->stop();
        EXPECT_FALSE(inside);
        return caught >= 10;
    })) << "too few stops met a callback";
}

TEST_F(ClockDisplayLinkTest, DoesNotWaitForTheNextRefreshWhenStopped) {
    makeLink(24.0);
    Clock::duration quickest = 1s;
    for (int i = 0; i < 20 && quickest >= 10ms; ++i) {
        link->start();
        std::this_thread::sleep_for(2ms);
        const auto start = Clock::now();
        link->stop();
        quickest = std::min(quickest, Clock::now() - start);
    }
    EXPECT_LT(quickest, 10ms);
}

TEST_F(ClockDisplayLinkTest, MayBeDestroyedWhileStarted) {
    for (int i = 0; i < 50; ++i) {
        makeLink(360.0);
        link->start();
        ASSERT_TRUE(i % 10 != 0 || waitForMore(1));
        std::this_thread::sleep_for(std::chrono::microseconds(100 * i));
        link.reset();
    }
    const std::size_t last = count();
    std::this_thread::sleep_for(20ms);
    EXPECT_EQ(count(), last);
}

TEST_F(ClockDisplayLinkTest, MayOutliveItsMaker) {
    std::atomic<int> calls = 0;
    {
        ClockDisplayLinkMaker shortLived;
        link = shortLived.make([&](std::uint64_t) { ++calls; });
    }
    link->start();
    EXPECT_TRUE(waitUntil([&] { return calls > 0; }));
    link->stop();
}

// Asks for thread stacks that no address space has room for.
class ImpossibleThreads {
public:
    ImpossibleThreads() {
        pthread_getattr_default_np(&usual);
        pthread_attr_t huge;
        pthread_attr_init(&huge);
        pthread_attr_setstacksize(&huge, std::size_t{1} << 60);
        pthread_setattr_default_np(&huge);
        pthread_attr_destroy(&huge);
    }
    ~ImpossibleThreads() {
        pthread_setattr_default_np(&usual);
        pthread_attr_destroy(&usual);
    }
    ImpossibleThreads(const ImpossibleThreads&) = delete;
    ImpossibleThreads& operator=(const ImpossibleThreads&) = delete;

private:
    pthread_attr_t usual{};
};

TEST(ClockDisplayLinkMaker, OffersNoLinkWhenNoThreadCanBeHad) {
    ClockDisplayLinkMaker maker;
    {
        const ImpossibleThreads none;
        EXPECT_EQ(maker.make([](std::uint64_t) {}), nullptr);
    }
    EXPECT_NE(maker.make([](std::uint64_t) {}), nullptr);
}

} // namespace

} // namespace tessaline
