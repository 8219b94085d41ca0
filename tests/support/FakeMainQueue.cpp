#include "support/FakeMainQueue.h"

#include <utility>

namespace tessaline {

void FakeMainQueue::post(std::function<void()> task) {
    const std::lock_guard lock(mutex);
    tasks.push_back(std::move(task));
}

void FakeMainQueue::runAll() {
    while (const auto task = takeFirst()) {
        task();
    }
}

std::size_t FakeMainQueue::pending() const {
    const std::lock_guard lock(mutex);
    return tasks.size();
}

std::function<void()> FakeMainQueue::takeFirst() {
    const std::lock_guard lock(mutex);
    if (tasks.empty()) return nullptr;
    auto task = std::move(tasks.front());
    tasks.pop_front();
    return task;
}

} // namespace tessaline
