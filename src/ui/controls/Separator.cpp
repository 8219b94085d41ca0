#include "ui/controls/Separator.h"

#include "appearance/SystemPalette.h"

#include <QPainter>

#include <cmath>

namespace tessaline {

Separator::Separator(int width, QWidget* parent) : QWidget(parent) {
    setFixedSize(width, 1);
}

// Whole pixels: at one and a half pixels a point, lines would come out unequal otherwise.
void Separator::paintEvent(QPaintEvent*) {
    const double thickness = std::floor(devicePixelRatioF()) / devicePixelRatioF();
    QPainter(this).fillRect(QRectF(0, 0, width(), thickness), SystemPalette::quaternaryLabel);
}

} // namespace tessaline
