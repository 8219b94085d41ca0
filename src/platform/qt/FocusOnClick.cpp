#include "platform/qt/FocusOnClick.h"

#include "platform/WindowTraits.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QWindow>

#include <algorithm>

namespace tessaline {

namespace {

/// A menu lies over the window that it belongs to, and closes when that one loses the keyboard.
bool showsPopup() {
    const auto windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.begin(), windows.end(), [](const QWindow* window) {
        return window->type() == Qt::Popup && window->isVisible();
    });
}

} // namespace

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
        giveBack = QGuiApplication::mouseButtons() == Qt::NoButton && !showsPopup();
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
