#include "platform/qt/QtMainQueue.h"

#include <QCoreApplication>
#include <QEvent>

#include <memory>
#include <utility>

namespace tessaline {

// The tasks wait here and not inside Qt's own calls, which would leave copies of them to be
// destroyed on the thread that posts.
void QtMainQueue::post(std::function<void()> task) {
    // Made before the lock is taken, which so orders it before its deletion on the main thread.
    auto wakeUp = std::make_unique<QEvent>(QEvent::User);
    {
        const std::lock_guard lock(mutex);
        tasks.push_back(std::move(task));
    }
    QCoreApplication::postEvent(this, wakeUp.release());
}

void QtMainQueue::customEvent(QEvent*) {
    const auto task = takeFirst();
    task();
}

std::function<void()> QtMainQueue::takeFirst() {
    const std::lock_guard lock(mutex);
    auto task = std::move(tasks.front());
    tasks.pop_front();
    return task;
}

} // namespace tessaline
