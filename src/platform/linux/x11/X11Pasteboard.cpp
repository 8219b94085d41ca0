#include "platform/linux/x11/X11Pasteboard.h"

#include "platform/MainQueue.h"
#include "platform/TaskRunner.h"
#include "platform/linux/x11/X11SelectionReader.h"

#include <utility>

namespace tessaline {

X11Pasteboard::X11Pasteboard(MainQueue& mainQueue, TaskRunner& taskRunner)
    : queue(mainQueue), tasks(taskRunner), self(std::make_shared<X11Pasteboard*>(this)) {}

void X11Pasteboard::refresh(std::function<void(const QString& problem)> done) {
    tasks.run([weak = std::weak_ptr(self), &mainQueue = queue, done = std::move(done)] {
        QString problem;
        auto found = X11SelectionReader().readText(&problem);
        mainQueue.post([weak, done, problem, found = std::move(found)] {
            const auto pasteboard = weak.lock();
            if (!pasteboard) return;
            (*pasteboard)->text = found;
            done(problem);
        });
    });
}

} // namespace tessaline
