#pragma once

#include "platform/TaskRunner.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace tessaline {

/// Task runner with one worker thread, which starts with the first task. While the system refuses
/// the thread, tasks run where they are handed in: late is better than never. Destruction waits for
/// the task that runs and drops those that have not started.
class ThreadTaskRunner final : public TaskRunner {
public:
    /// Starts a thread, or throws std::system_error.
    using StartThread = std::function<std::thread(std::function<void()> work)>;

    explicit ThreadTaskRunner(StartThread startThread = &startStandardThread);
    ~ThreadTaskRunner() override;
    ThreadTaskRunner(const ThreadTaskRunner&) = delete;
    ThreadTaskRunner& operator=(const ThreadTaskRunner&) = delete;

    void run(std::function<void()> task) override;

private:
    static std::thread startStandardThread(std::function<void()> work);
    bool hasWorker();
    void work();
    void runFirst(std::unique_lock<std::mutex>& lock);

    const StartThread startThread;
    std::mutex mutex;
    std::condition_variable wake;
    std::deque<std::function<void()>> tasks;
    bool stopping = false;
    bool workingWithoutThread = false;
    std::thread worker;
};

} // namespace tessaline
