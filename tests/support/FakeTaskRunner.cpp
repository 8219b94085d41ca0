#include "support/FakeTaskRunner.h"

#include <utility>

namespace tessaline {

void FakeTaskRunner::run(std::function<void()> task) {
    tasks.push_back(std::move(task));
}

void FakeTaskRunner::runNext() {
    const auto task = std::move(tasks.front());
    tasks.pop_front();
    task();
}

void FakeTaskRunner::runAll() {
    while (!tasks.empty()) {
        runNext();
    }
}

} // namespace tessaline
