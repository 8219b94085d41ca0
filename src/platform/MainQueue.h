#pragma once

#include <functional>

namespace tessaline {

/// Runs tasks on the main thread, later, in the order in which they were posted.
class MainQueue {
public:
    virtual ~MainQueue() = default;

    /// Queues a task and returns at once. Any thread.
    virtual void post(std::function<void()> task) = 0;
};

} // namespace tessaline
