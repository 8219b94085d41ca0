#include "platform/ThreadTaskRunner.h"

#include <system_error>
#include <utility>

namespace tessaline {

ThreadTaskRunner::ThreadTaskRunner(StartThread starter) : startThread(std::move(starter)) {}

ThreadTaskRunner::~ThreadTaskRunner() {
    {
        const std::lock_guard lock(mutex);
        stopping = true;
    }
    wake.notify_one();
    if (worker.joinable()) worker.join();
}

void ThreadTaskRunner::run(std::function<void()> task) {
    std::unique_lock lock(mutex);
    tasks.push_back(std::move(task));
    if (workingWithoutThread) return; // whoever works goes on with it
    if (hasWorker()) {
        wake.notify_one();
        return;
    }
    workingWithoutThread = true;
    while (!tasks.empty())
        runFirst(lock);
    workingWithoutThread = false;
}

std::thread ThreadTaskRunner::startStandardThread(std::function<void()> work) {
    return std::thread(std::move(work));
}

bool ThreadTaskRunner::hasWorker() {
    if (worker.joinable()) return true;
    try {
        worker = startThread([this] { work(); });
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

void ThreadTaskRunner::work() {
    std::unique_lock lock(mutex);
    while (true) {
        wake.wait(lock, [this] { return stopping || !tasks.empty(); });
        if (stopping) return;
        runFirst(lock);
    }
}

void ThreadTaskRunner::runFirst(std::unique_lock<std::mutex>& lock) {
    auto task = std::move(tasks.front());
    tasks.pop_front();
    lock.unlock();
    task();
    // What the task holds is released before the lock is taken again: its destructors may post.
    task = nullptr;
    lock.lock();
}

} // namespace tessaline
