#include "platform/qt/FrameMarginsWatch.h"

#include <QEvent>
#include <QWindow>

#include <utility>

namespace tessaline {

FrameMarginsWatch::FrameMarginsWatch(QWindow& watchedWindow, std::function<void()> action)
    : QObject(&watchedWindow)
    , window(watchedWindow)
    , onChange(std::move(action))
    , known(watchedWindow.frameMargins()) {
    window.installEventFilter(this);
}

bool FrameMarginsWatch::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    // Frames go with their windows; whatever the window says of its frame meanwhile is out of date.
    if (type == QEvent::Hide) known = {};
    if (type == QEvent::Expose || type == QEvent::Move || type == QEvent::Resize) {
        const QMargins now = window.frameMargins();
        if (std::exchange(known, now) != now) onChange();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tessaline
