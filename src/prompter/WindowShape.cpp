#include "prompter/WindowShape.h"

#include <QBitmap>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

namespace tessaline {

namespace {

constexpr double expandedCornerRadius = 16.0;

QPainterPath shapeOf(const QWidget& window, bool collapsed) {
    const QRectF bounds = window.rect();
    QPainterPath path;
    if (collapsed) {
        path.addRect(bounds);
        return path;
    }
    // The rounded rectangle begins above the window, so that only its lower corners are seen.
    path.addRoundedRect(bounds.adjusted(0, -2 * expandedCornerRadius, 0, 0), expandedCornerRadius,
                        expandedCornerRadius);
    return path;
}

QRegion maskOf(const QWidget& window, bool collapsed) {
    QBitmap mask(window.size());
    mask.clear();
    QPainter painter(&mask);
    painter.fillPath(shapeOf(window, collapsed), Qt::color1);
    painter.end();
    return QRegion(mask);
}

} // namespace

void updateShape(QWidget& window, bool collapsed, bool showsTranslucency) {
    if (showsTranslucency)
        window.clearMask();
    else
        window.setMask(maskOf(window, collapsed));
    window.update();
}

void paintShape(QWidget& window, bool collapsed) {
    QPainter painter(&window);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(shapeOf(window, collapsed), Qt::black);
}

} // namespace tessaline
