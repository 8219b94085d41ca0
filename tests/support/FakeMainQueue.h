#pragma once

#include "platform/MainQueue.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>

namespace tessaline {

/// Main queue that runs its tasks on the test's thread when the test says so. Tasks may be posted
/// from any thread.
class FakeMainQueue final : public MainQueue {
public:
    void post(std::function<void()> task) override;

    /// Runs what was posted, and what those tasks post, in order.
    void runAll();

    /// How many tasks wait.
    std::size_t pending() const;

private:
    std::function<void()> takeFirst();

    mutable std::mutex mutex;
    std::deque<std::function<void()>> tasks;
};

} // namespace tessaline
