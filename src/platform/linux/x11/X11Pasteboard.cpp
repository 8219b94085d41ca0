#include "platform/linux/x11/X11Pasteboard.h"

#include "platform/MainQueue.h"
#include "platform/TaskRunner.h"
#include "platform/linux/x11/X11SelectionReader.h"

#include <utility>

namespace tessaline {

X11Pasteboard::X11Pasteboard(MainQueue& mainQueue, TaskRunner& taskRunner)
    : queue(mainQueue), tasks(taskRunner) {}

void X11Pasteboard::refresh(std::function<void(const QString& problem)> done) {
    auto take = lifetime.guard([this, done = std::move(done)](const std::optional<QString>& found,
                                                              const QString& problem) {
        text = found;
        done(problem);
    });
    tasks.run([&mainQueue = queue, take = std::move(take)] {
        QString problem;
        auto found = X11SelectionReader().readText(&problem);
        mainQueue.post([take, problem, found = std::move(found)] { take(found, problem); });
    });
}

} // namespace tessaline
