#include "ui/controls/StatusDot.h"

#include <QPainter>

namespace tessaline {

StatusDot::StatusDot(int diameter, QWidget* parent) : QWidget(parent) {
    setFixedSize(diameter, diameter);
}

void StatusDot::setStatus(const QColor& color, const QString& spoken) {
    setAccessibleName(spoken);
    if (color == fill) return;
    fill = color;
    update();
}

void StatusDot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawEllipse(rect());
}

} // namespace tessaline
