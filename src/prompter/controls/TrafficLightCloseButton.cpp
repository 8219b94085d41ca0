#include "prompter/controls/TrafficLightCloseButton.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace tessaline {

namespace {

constexpr int usualDiameter = 12;
constexpr double strokeWidth = 0.5;
constexpr double crossWidth = 1.2;
constexpr double crossInset = 0.3; // of the diameter, on each side

QColor strokeColor() {
    return QColor::fromRgbF(0.85F, 0.28F, 0.24F, 0.6F);
}

QRectF centredSquare(const QRectF& bounds) {
    const double side = std::min(bounds.width(), bounds.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(bounds.center());
    return square;
}

void paintCross(QPainter& painter, const QRectF& square, const QColor& color) {
    painter.setPen(QPen(color, crossWidth, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(square.topLeft(), square.bottomRight());
    painter.drawLine(square.topRight(), square.bottomLeft());
}

} // namespace

TrafficLightCloseButton::TrafficLightCloseButton(QWidget* parent) : TrackedButton(parent) {}

QSize TrafficLightCloseButton::sizeHint() const {
    return {usualDiameter, usualDiameter};
}

void TrafficLightCloseButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF circle = centredSquare(rect());
    painter.setPen(QPen(strokeColor(), strokeWidth));
    painter.setBrush(isPressed() ? circleColorPressed : circleColor);
    painter.drawEllipse(circle);

    if (isHovered()) {
        const double inset = crossInset * circle.width();
        paintCross(painter, circle.adjusted(inset, inset, -inset, -inset), crossColor);
    }
    QPainterPath outline;
    outline.addEllipse(circle.adjusted(1, 1, -1, -1));
    paintFocusRing(painter, outline);
}

} // namespace tessaline
