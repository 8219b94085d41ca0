#pragma once

#include "platform/MainQueue.h"

#include <QObject>

#include <deque>
#include <mutex>

namespace tessaline {

/// Main queue on Qt's event loop. Create and destroy it on the main thread, and keep it alive until
/// nobody posts any more; tasks that have not run by then are dropped. Tasks are destroyed on the
/// main thread.
class QtMainQueue final : public MainQueue, private QObject {
public:
    void post(std::function<void()> task) override;

private:
    void customEvent(QEvent* event) override;
    std::function<void()> takeFirst();

    std::mutex mutex;
    std::deque<std::function<void()>> tasks;
};

} // namespace tessaline
