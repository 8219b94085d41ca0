#include "support/PointerEvents.h"

#include <QCoreApplication>
#include <QEnterEvent>
#include <QWheelEvent>

namespace tessaline {

namespace {

constexpr int notch = 120;

void send(QWidget& widget, QEvent& event) {
    QCoreApplication::sendEvent(&widget, &event);
}

void sendMouse(QWidget& widget, QEvent::Type type, QPoint place, Qt::MouseButton button,
               Qt::MouseButtons held) {
    QMouseEvent event(type, place, widget.mapToGlobal(QPointF(place)), button, held,
                      Qt::NoModifier);
    send(widget, event);
}

} // namespace

void pointerEnters(QWidget& widget) {
    const QPointF middle = QRectF(widget.rect()).center();
    QEnterEvent event(middle, middle, widget.mapToGlobal(middle));
    send(widget, event);
}

void pointerLeaves(QWidget& widget) {
    QEvent event(QEvent::Leave);
    send(widget, event);
}

void mouseDown(QWidget& widget, QPoint place) {
    sendMouse(widget, QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
}

void mouseDrag(QWidget& widget, QPoint place) {
    sendMouse(widget, QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton);
}

void mouseUp(QWidget& widget, QPoint place) {
    sendMouse(widget, QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
}

void wheelDown(QWidget& widget) {
    const QPointF middle = QRectF(widget.rect()).center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), QPoint(), QPoint(0, -notch), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    send(widget, event);
}

} // namespace tessaline
