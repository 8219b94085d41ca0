#pragma once

#include "platform/TaskRunner.h"

#include <cstddef>
#include <deque>

namespace tessaline {

/// Task runner that runs its tasks on the test's thread when the test says so.
class FakeTaskRunner final : public TaskRunner {
public:
    void run(std::function<void()> task) override;

    /// Runs the task that was started first. There must be one.
    void runNext();

    /// Runs what was started, and what those tasks start.
    void runAll();

    std::size_t pending() const { return tasks.size(); }

private:
    std::deque<std::function<void()>> tasks;
};

} // namespace tessaline
