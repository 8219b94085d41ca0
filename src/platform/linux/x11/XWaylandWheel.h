#pragma once

#include "platform/linux/x11/XWaylandFingers.h"

#include <QObject>
#include <QPointF>

class QGuiApplication;
class QWheelEvent;

namespace tessaline {

/// Has what fingers scroll through XWayland reach our windows in points, which Qt does not know
/// there.
class XWaylandWheel : public QObject {
public:
    /// Watches the application's events for as long as that lives, which owns it.
    explicit XWaylandWheel(QGuiApplication& application);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool isByFingers(const QWheelEvent& event);
    QPoint wholePoints(const QPointF& points);

    XWaylandFingers fingers;
    QPointF rest; ///< of points that did not make a whole one yet
};

} // namespace tessaline
