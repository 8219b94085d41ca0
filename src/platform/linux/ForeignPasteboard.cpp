#include "platform/linux/ForeignPasteboard.h"

#include "platform/MainQueue.h"
#include "platform/TaskRunner.h"

#include <utility>

namespace tessaline {

ForeignPasteboard::ForeignPasteboard(MainQueue& mainQueue, TaskRunner& taskRunner, Read reader)
    : queue(mainQueue), tasks(taskRunner), read(std::move(reader)) {}

void ForeignPasteboard::refresh(std::function<void(const QString& problem)> done) {
    auto take = lifetime.guard([this, done = std::move(done)](const std::optional<QString>& found,
                                                              const QString& problem) {
        text = found;
        done(problem);
    });
    tasks.run([&mainQueue = queue, reader = read, take = std::move(take)] {
        QString problem;
        auto found = reader(&problem);
        mainQueue.post([take, problem, found = std::move(found)] { take(found, problem); });
    });
}

} // namespace tessaline
