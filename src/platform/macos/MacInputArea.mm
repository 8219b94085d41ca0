#include "platform/macos/MacInputArea.h"

#include "platform/macos/MacWindow.h"

#include <QCoreApplication>
#include <QCursor>
#include <QMouseEvent>

namespace tessaline {

MacInputArea::~MacInputArea() {
    stopWatching();
}

void MacInputArea::set(QWidget& window, const std::optional<QRect>& area) {
    if (!area && !inputArea) return;
    widget = &window;
    inputArea = area;
    area ? watch() : stopWatching();
    follow();
}

void MacInputArea::watch() {
    if (monitor) return;
    // Of drags only the end counts: a button that is held belongs to the window it was pressed in.
    const NSEventMask movements = NSEventMaskMouseMoved | NSEventMaskLeftMouseUp;
    monitor = [NSEvent addGlobalMonitorForEventsMatchingMask:movements
                                                     handler:^(NSEvent* /*event*/) {
                                                       follow();
                                                     }];
    QCoreApplication::instance()->installEventFilter(this);
}

void MacInputArea::stopWatching() {
    if (!monitor) return;
    [NSEvent removeMonitor:monitor];
    monitor = nil;
    if (auto* application = QCoreApplication::instance()) application->removeEventFilter(this);
}

bool MacInputArea::eventFilter(QObject* /*watched*/, QEvent* event) {
    const bool isMove = event->type() == QEvent::MouseMove &&
                        static_cast<const QMouseEvent&>(*event).buttons() == Qt::NoButton;
    if (isMove || event->type() == QEvent::MouseButtonRelease) follow();
    return false;
}

void MacInputArea::follow() const {
    if (!widget) return;
    const bool takes = !inputArea || inputArea->contains(widget->mapFromGlobal(QCursor::pos()));
    windowOf(widget->winId()).ignoresMouseEvents = !takes;
}

} // namespace tessaline
