#include "platform/linux/wayland/SurfaceHole.h"

#include <QPainter>

namespace tessaline {

SurfaceHole::SurfaceHole(QWidget& window) : QWidget(&window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    hide();
}

void SurfaceHole::update() {
    const QRect whole = window()->rect();
    hole = window()->mask().isEmpty() ? QRegion() : QRegion(whole) - window()->mask();
    setVisible(!hole.isEmpty());
    if (hole.isEmpty()) return;
    setGeometry(whole);
    raise();
    QWidget::update();
}

void SurfaceHole::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    for (const QRect& part : hole)
        painter.fillRect(part, Qt::black);
}

} // namespace tessaline
