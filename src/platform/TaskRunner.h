#pragma once

#include <functional>

namespace tessaline {

/// Runs tasks that may block, such as file reads, away from the main thread.
class TaskRunner {
public:
    virtual ~TaskRunner() = default;

    /// Starts a task in the background and returns at once. Tasks run one after another, in order.
    /// A task may run before this returns where the system has no thread for it. Any thread.
    virtual void run(std::function<void()> task) = 0;
};

} // namespace tessaline
