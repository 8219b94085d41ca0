#include "platform/qt/FocusOnClick.h"

#include "platform/WindowTraits.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWindow>

namespace tessaline {

FocusOnClick::FocusOnClick(QWindow& watchedWindow, WindowTraits& windowTraits)
    : QObject(&watchedWindow), window(watchedWindow), traits(windowTraits) {
    window.installEventFilter(this);
}

bool FocusOnClick::eventFilter(QObject* watched, QEvent* event) {
    bool giveBack = false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        traits.takeKeyboard(window.winId());
        break;
    case QEvent::MouseButtonRelease:
        giveBack = releasedOutside(static_cast<const QMouseEvent&>(*event));
        break;
    case QEvent::Leave:
        giveBack = QGuiApplication::mouseButtons() == Qt::NoButton;
        break;
    case QEvent::KeyPress:
        giveBack = static_cast<const QKeyEvent&>(*event).key() == Qt::Key_Escape;
        break;
    case QEvent::Hide:
        giveBack = true;
        break;
    default:
        break;
    }
    // winId would create a native window anew for one that is being destroyed.
    if (giveBack && window.handle()) traits.giveKeyboardBack(window.winId());
    return QObject::eventFilter(watched, event);
}

bool FocusOnClick::releasedOutside(const QMouseEvent& event) const {
    const bool inside = QRectF(QPointF(), window.size()).contains(event.position());
    return event.buttons() == Qt::NoButton && !inside;
}

} // namespace tessaline
