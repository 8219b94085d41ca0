#include "prompter/ElidingLabel.h"

#include <QFontMetricsF>
#include <QPainter>

namespace tessaline {

ElidingLabel::ElidingLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

void ElidingLabel::setColor(const QColor& newColor) {
    if (newColor == textColor) return;
    textColor = newColor;
    update();
}

void ElidingLabel::paintEvent(QPaintEvent*) {
    const QString shown = QFontMetricsF(font()).elidedText(text(), Qt::ElideLeft, width());
    QPainter painter(this);
    painter.setPen(textColor);
    painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, shown);
}

} // namespace tessaline
