#pragma once

#include "platform/TaskRunner.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace tessaline {

/// Task runner with one worker thread. Destruction waits for the task that runs and drops those
/// that have not started.
class ThreadTaskRunner final : public TaskRunner {
public:
    ThreadTaskRunner();
    ~ThreadTaskRunner() override;
    ThreadTaskRunner(const ThreadTaskRunner&) = delete;
    ThreadTaskRunner& operator=(const ThreadTaskRunner&) = delete;

    void run(std::function<void()> task) override;

private:
    void work();

    std::mutex mutex;
    std::condition_variable wake;
    std::deque<std::function<void()>> tasks;
    bool stopping = false;
    std::thread worker;
};

} // namespace tessaline
