#include "app/WindowOrder.h"

#include <QWidget>

namespace tessaline {

void makeKeyAndOrderFront(QWidget& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace tessaline
