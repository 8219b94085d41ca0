#include "platform/ThreadTaskRunner.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <future>
#include <optional>
#include <system_error>
#include <thread>
#include <vector>

namespace tessaline {
namespace {

TEST(ThreadTaskRunner, RunsTasksInOrderOnOneOtherThread) {
    std::vector<int> ran;
    std::vector<std::thread::id> threads;
    std::promise<void> done;
    ThreadTaskRunner runner;
    for (int number = 0; number < 100; ++number) {
        runner.run([&, number] {
            ran.push_back(number);
            threads.push_back(std::this_thread::get_id());
        });
    }
    runner.run([&] { done.set_value(); });
    done.get_future().wait();
    ASSERT_EQ(ran.size(), 100U);
    EXPECT_TRUE(std::is_sorted(ran.begin(), ran.end()));
    EXPECT_NE(threads.front(), std::this_thread::get_id());
    EXPECT_THAT(threads, ::testing::Each(threads.front()));
}

TEST(ThreadTaskRunner, LetsATaskStartAnother) {
    std::promise<void> done;
    ThreadTaskRunner runner;
    runner.run([&] { runner.run([&] { done.set_value(); }); });
    done.get_future().wait();
}

TEST(ThreadTaskRunner, WaitsForTheRunningTaskWhenItGoes) {
    std::promise<void> started;
    std::promise<void> release;
    bool finished = false;
    auto runner = std::make_optional<ThreadTaskRunner>();
    runner->run([&] {
        started.set_value();
        release.get_future().wait();
        finished = true;
    });
    started.get_future().wait();
    std::thread releaser([&] { release.set_value(); });
    runner.reset();
    EXPECT_TRUE(finished);
    releaser.join();
}

TEST(ThreadTaskRunner, DropsTheTasksThatHaveNotStartedWhenItGoes) {
    constexpr int count = 5000;
    int ran = 0;
    {
        ThreadTaskRunner runner;
        for (int number = 0; number < count; ++number) {
            runner.run([&] {
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
                ++ran;
            });
        }
    }
    EXPECT_LT(ran, count);
}

/// A system that starts no thread until it is allowed.
class ThreadTaskRunnerWithoutThreads : public ::testing::Test {
protected:
    bool isAllowed = false;
    int refusals = 0;
    ThreadTaskRunner runner{[this](std::function<void()> work) {
        if (isAllowed) return std::thread(std::move(work));
        ++refusals;
        throw std::system_error(EAGAIN, std::generic_category());
    }};
};

TEST_F(ThreadTaskRunnerWithoutThreads, RunsTasksWhereTheyAreHandedIn) {
    std::vector<int> ran;
    std::thread::id thread;
    runner.run([&] {
        thread = std::this_thread::get_id();
        runner.run([&] { ran.push_back(2); });
        ran.push_back(1);
    });
    runner.run([&] { ran.push_back(3); });
    EXPECT_THAT(ran, ::testing::ElementsAre(1, 2, 3));
    EXPECT_EQ(thread, std::this_thread::get_id());
}

TEST_F(ThreadTaskRunnerWithoutThreads, AsksForTheThreadAgain) {
    runner.run([] {});
    EXPECT_EQ(refusals, 1);
    isAllowed = true;
    std::promise<std::thread::id> thread;
    runner.run([&] { thread.set_value(std::this_thread::get_id()); });
    EXPECT_NE(thread.get_future().get(), std::this_thread::get_id());
}

} // namespace
} // namespace tessaline
