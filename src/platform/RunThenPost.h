#pragma once

#include "platform/MainQueue.h"
#include "platform/TaskRunner.h"

#include <memory>
#include <utility>

namespace tessaline {

/// Has `work` done in the background, and `finish` called with its result on the main thread, where
/// `finish` is also destroyed. The work is spared when `finish` is one of a Lifetime's and would do
/// nothing any more. Borrows the queue.
template <typename Work, typename Finish>
void runThenPost(TaskRunner& tasks, MainQueue& queue, Work work, Finish finish) {
    tasks.run([&queue, work = std::move(work), finish = std::move(finish)]() mutable {
        if constexpr (requires { finish.isAlive(); })
            if (!finish.isAlive()) return queue.post([finish = std::move(finish)] {});
        // What a queue holds has to be copyable, which not every result is.
        auto result = std::make_shared<decltype(work())>(work());
        queue.post([result, finish = std::move(finish)] { finish(std::move(*result)); });
    });
}

} // namespace tessaline
