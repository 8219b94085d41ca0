#include "platform/qt/WidgetFrame.h"

#include "platform/ScreenCoordinates.h"

#include <QWidget>

namespace tessaline {

void setFrame(QWidget& window, const Rect& frame) {
    window.setGeometry(toQtCoordinates(frame, primaryGeometry()));
}

Rect frameOf(const QWidget& window) {
    return fromQtCoordinates(window.geometry(), primaryGeometry());
}

} // namespace tessaline
