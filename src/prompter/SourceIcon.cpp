#include "prompter/SourceIcon.h"

#include "appearance/SystemPalette.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>

namespace tessaline {

namespace {

/// The drawings are made on a square of this side and scaled to the size asked for.
constexpr double side = 12.0;
constexpr double cornerRadius = 1.5;

/// A rectangle of a drawing whose edges lie between pixels.
QRectF onPixels(const QRectF& rect, double scale) {
    const auto nearest = [scale](double position) { return std::round(position * scale); };
    const QPointF topLeft(nearest(rect.left()), nearest(rect.top()));
    return {topLeft, QPointF(nearest(rect.right()), nearest(rect.bottom()))};
}

QPainterPath bar(const QRectF& rect, double scale) {
    QPainterPath path;
    path.addRect(onPixels(rect, scale));
    return path;
}

/// The outline of a sheet, a whole number of pixels thick.
QPainterPath sheet(const QRectF& rect, double scale) {
    const double stroke = std::max(std::round(scale), 1.0);
    const QRectF outer = onPixels(rect, scale);
    const double outerRadius = cornerRadius * scale;
    const double innerRadius = std::max(outerRadius - stroke, 0.0);
    QPainterPath path;
    path.addRoundedRect(outer, outerRadius, outerRadius);
    path.addRoundedRect(outer.adjusted(stroke, stroke, -stroke, -stroke), innerRadius, innerRadius);
    return path;
}

struct Facet {
    QPolygonF corners;
    double alpha;
};

/// Shaded facets, because lines do not stay apart on so few pixels.
void paintCutStone(QPainter& painter, const QColor& color, double scale) {
    static const std::array facets{
        Facet{{{{3, 1}, {0, 5}, {4, 5}}}, 1.0},  Facet{{{{3, 1}, {9, 1}, {8, 5}, {4, 5}}}, 0.55},
        Facet{{{{9, 1}, {12, 5}, {8, 5}}}, 0.8}, Facet{{{{0, 5}, {4, 5}, {6, 12}}}, 0.7},
        Facet{{{{4, 5}, {8, 5}, {6, 12}}}, 1.0}, Facet{{{{8, 5}, {12, 5}, {6, 12}}}, 0.55},
    };
    painter.scale(scale, scale);
    painter.setPen(Qt::NoPen);
    for (const auto& [corners, alpha] : facets) {
        painter.setBrush(SystemPalette::withAlpha(color, alpha));
        painter.drawPolygon(corners);
    }
}

QPainterPath notePage(double scale) {
    QPainterPath path = sheet({1, 0, 10, 12}, scale);
    for (const QRectF& line : {QRectF(2, 3, 8, 1), QRectF(3, 6, 6, 1), QRectF(3, 8, 6, 1)})
        path.addPath(bar(line, scale));
    return path;
}

QPainterPath clipboardBoard(double scale) {
    return sheet({1, 1, 10, 11}, scale).united(bar({4, 0, 4, 3}, scale));
}

void paintSource(QPainter& painter, SourceType source, double scale) {
    const QColor color = sourceColor(source);
    switch (source) {
    case SourceType::obsidian:
        return paintCutStone(painter, color, scale);
    case SourceType::appleNotes:
        return painter.fillPath(notePage(scale), color);
    case SourceType::clipboard:
        return painter.fillPath(clipboardBoard(scale), color);
    }
    Q_UNREACHABLE();
}

/// Draws the icon at whatever size it is needed, which is in device pixels.
class DrawnIconEngine final : public QIconEngine {
public:
    explicit DrawnIconEngine(SourceType drawnSource) : source(drawnSource) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        paintSource(*painter, source, rect.width() / side);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new DrawnIconEngine(*this); }

private:
    SourceType source;
};

} // namespace

QColor sourceColor(SourceType source) {
    switch (source) {
    case SourceType::obsidian:
        return QColor::fromRgbF(0.49F, 0.23F, 0.93F);
    case SourceType::appleNotes:
        return SystemPalette::yellow;
    case SourceType::clipboard:
        return SystemPalette::orange;
    }
    Q_UNREACHABLE();
}

QIcon sourceIcon(SourceType source) {
    return QIcon(new DrawnIconEngine(source));
}

} // namespace tessaline
