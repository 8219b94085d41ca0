#include "prompter/ElidingLabel.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace tessaline {

ElidingLabel::ElidingLabel(QWidget* parent) : QWidget(parent) {}

void ElidingLabel::setText(const QString& newText) {
    if (newText == content) return;
    content = newText;
    setAccessibleName(content);
    updateGeometry();
    update();
}

void ElidingLabel::setColor(const QColor& newColor) {
    if (newColor == textColor) return;
    textColor = newColor;
    update();
}

QSize ElidingLabel::sizeHint() const {
    const QFontMetricsF metrics(font());
    return {int(std::ceil(metrics.horizontalAdvance(content))), int(std::ceil(metrics.height()))};
}

void ElidingLabel::paintEvent(QPaintEvent*) {
    const QString shown = QFontMetricsF(font()).elidedText(content, Qt::ElideLeft, width());
    QPainter painter(this);
    painter.setPen(textColor);
    painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, shown);
}

} // namespace tessaline
