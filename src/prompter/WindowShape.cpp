#include "prompter/WindowShape.h"

#include "prompter/view/FrameLook.h"

#include <QBitmap>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

namespace tessaline {

namespace {

constexpr double expandedCornerRadius = 16.0;

QPainterPath shapeOf(const QWidget& window, bool square) {
    const QRectF bounds = window.rect();
    QPainterPath path;
    if (square) {
        path.addRect(bounds);
        return path;
    }
    // The rounded rectangle begins above the window, so that only its lower corners are seen.
    path.addRoundedRect(bounds.adjusted(0, -2 * expandedCornerRadius, 0, 0), expandedCornerRadius,
                        expandedCornerRadius);
    return path;
}

QRegion maskOf(const QWidget& window, bool square) {
    QBitmap mask(window.size());
    mask.clear();
    QPainter painter(&mask);
    painter.fillPath(shapeOf(window, square), Qt::color1);
    painter.end();
    return QRegion(mask);
}

} // namespace

void updateShape(QWidget& window, bool square, bool showsTranslucency, const QRegion& cutOut) {
    if (showsTranslucency && cutOut.isEmpty()) {
        window.clearMask();
    } else {
        const QRegion whole = showsTranslucency ? QRegion(window.rect()) : maskOf(window, square);
        window.setMask(whole - cutOut);
    }
    window.update();
}

void paintShape(QWidget& window, bool square, int opaqueHeight, double opacityBelow) {
    const QPainterPath shape = shapeOf(window, square);
    QPainter painter(&window);
    painter.setRenderHint(QPainter::Antialiasing);
    if (opacityBelow >= 1.0) return painter.fillPath(shape, Qt::black);
    const QRect opaque(0, 0, window.width(), opaqueHeight);
    painter.setClipRect(opaque);
    painter.fillPath(shape, Qt::black);
    painter.setClipRegion(QRegion(window.rect()) - opaque);
    painter.fillPath(shape, QColor::fromRgba(FrameLook{.groundOpacity = opacityBelow}.ground()));
}

} // namespace tessaline
