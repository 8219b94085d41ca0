#include "platform/linux/x11/XWaylandWheel.h"

#include <QGuiApplication>
#include <QWheelEvent>
#include <QWindow>

namespace tessaline {

namespace {

constexpr double unitsPerNotch = 120.0;

} // namespace

XWaylandWheel::XWaylandWheel(QGuiApplication& application) : QObject(&application) {
    application.installEventFilter(this);
}

bool XWaylandWheel::eventFilter(QObject* watched, QEvent* event) {
    // Windows get it first, and pass it on to their widgets.
    if (event->type() != QEvent::Wheel || !watched->isWindowType()) return false;
    const auto& wheel = static_cast<const QWheelEvent&>(*event);
    if (wheel.hasPixelDelta()) return false;
    if (!isByFingers(wheel)) {
        rest = {};
        return false;
    }
    const QPointF notches = QPointF(wheel.angleDelta()) / unitsPerNotch;
    const QPoint points = wholePoints(notches * XWaylandFingers::pointsPerNotch);
    if (points.isNull()) return true;
    QWheelEvent precise(wheel.position(), wheel.globalPosition(), points, wheel.angleDelta(),
                        wheel.buttons(), wheel.modifiers(), wheel.phase(), wheel.inverted(),
                        wheel.source(), wheel.pointingDevice());
    precise.setTimestamp(wheel.timestamp());
    QCoreApplication::sendEvent(watched, &precise);
    return true;
}

/// Nothing of a slow movement is lost.
QPoint XWaylandWheel::wholePoints(const QPointF& points) {
    rest += points;
    const QPoint whole(int(rest.x()), int(rest.y()));
    rest -= whole;
    return whole;
}

bool XWaylandWheel::isByFingers(const QWheelEvent& event) {
    const QPoint units = event.angleDelta();
    return fingers.moved((units.y() != 0 ? units.y() : units.x()) / unitsPerNotch,
                         static_cast<std::uint32_t>(event.timestamp()));
}

} // namespace tessaline
