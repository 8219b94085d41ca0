#include "ui/controls/Bezel.h"

#include "appearance/SystemPalette.h"
#include "controls/KeyboardFocus.h"

#include <QPainter>
#include <QWidget>

namespace tessaline {

namespace {

constexpr double cornerRadius = 5.0;
constexpr double ringWidth = 2.0;
constexpr int pressedLightness = 125;
constexpr double disabledOpacity = 0.5;

} // namespace

void drawBezel(QPainter& painter, const QWidget& widget, QColor ground, bool pressed) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (pressed) ground = ground.lighter(pressedLightness);
    if (!widget.isEnabled()) painter.setOpacity(disabledOpacity);
    const QRectF bounds(widget.rect());
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(bounds, cornerRadius, cornerRadius);
    if (showsFocus(widget)) {
        const double inset = ringWidth / 2;
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(SystemPalette::focusRing, ringWidth));
        painter.drawRoundedRect(bounds.adjusted(inset, inset, -inset, -inset), cornerRadius - inset,
                                cornerRadius - inset);
    }
    painter.restore();
}

void drawArrows(QPainter& painter, const QPointF& middle) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(SystemPalette::label, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const int way : {-1, 1}) {
        const auto at = [&](double x, double y) { return middle + QPointF(x, way * y); };
        painter.drawPolyline(QPolygonF({at(-arrowReach, 2), at(0, 5), at(arrowReach, 2)}));
    }
    painter.restore();
}

} // namespace tessaline
