#include "prompter/SourceIcon.h"

#include "appearance/SystemPalette.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

namespace tessaline {

namespace {

/// The drawings are made on a square of this side and scaled to the size asked for.
constexpr double side = 12.0;

QPainterPath cutStone() {
    QPainterPath path;
    path.addPolygon(
        QPolygonF({{6.5, 0.5}, {10, 4}, {9, 10}, {5.5, 11.5}, {2, 8}, {3, 3}, {6.5, 0.5}}));
    path.moveTo(6.5, 0.5);
    path.lineTo(6, 5.5);
    path.lineTo(2, 8);
    path.moveTo(6, 5.5);
    path.lineTo(9, 10);
    return path;
}

QPainterPath notePage() {
    QPainterPath path;
    path.addRoundedRect(QRectF(2, 1, 8, 10), 1.5, 1.5);
    path.moveTo(2, 4);
    path.lineTo(10, 4);
    path.moveTo(4, 7);
    path.lineTo(8, 7);
    return path;
}

QPainterPath clipboardBoard() {
    QPainterPath path;
    path.addRoundedRect(QRectF(2, 2, 8, 9.5), 1.5, 1.5);
    path.addRoundedRect(QRectF(4, 0.5, 4, 3), 1, 1);
    return path;
}

QPainterPath outlineOf(SourceType source) {
    switch (source) {
    case SourceType::obsidian:
        return cutStone();
    case SourceType::appleNotes:
        return notePage();
    case SourceType::clipboard:
        return clipboardBoard();
    }
    Q_UNREACHABLE();
}

/// Draws the outline at whatever size and pixel ratio the icon is needed.
class OutlineEngine final : public QIconEngine {
public:
    explicit OutlineEngine(SourceType drawnSource) : source(drawnSource) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / side, rect.height() / side);
        painter->setPen(QPen(sourceColor(source), 1.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(outlineOf(source));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new OutlineEngine(*this); }

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
    return QIcon(new OutlineEngine(source));
}

} // namespace tessaline
