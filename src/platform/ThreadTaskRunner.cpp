#include "platform/ThreadTaskRunner.h"

#include <utility>

namespace tessaline {

ThreadTaskRunner::ThreadTaskRunner() : worker([this] { work(); }) {}

ThreadTaskRunner::~ThreadTaskRunner() {
    {
        const std::lock_guard lock(mutex);
        stopping = true;
    }
    wake.notify_one();
    worker.join();
}

void ThreadTaskRunner::run(std::function<void()> task) {
    {
        const std::lock_guard lock(mutex);
        tasks.push_back(std::move(task));
    }
    wake.notify_one();
}

void ThreadTaskRunner::work() {
    std::unique_lock lock(mutex);
    while (true) {
        wake.wait(lock, [this] { return stopping || !tasks.empty(); });
        if (stopping) return;
        auto task = std::move(tasks.front());
        tasks.pop_front();
        lock.unlock();
        task();
        // What the task holds is released before the lock is taken again: its destructors may post.
        task = nullptr;
        lock.lock();
    }
}

} // namespace tessaline
