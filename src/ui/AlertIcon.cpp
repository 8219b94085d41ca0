#include "ui/AlertIcon.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"

#include <QPainter>
#include <QPainterPath>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int side = 192; ///< pixels: enough for 48 points on every screen

QPainterPath triangle() {
    QPainterPath path;
    path.addPolygon(QPolygonF({{96, 28}, {172, 160}, {20, 160}}));
    path.closeSubpath();
    return path;
}

void drawMark(QPainter& painter, const QString& mark, const QColor& color, const QRectF& place) {
    painter.setFont(systemFont(100, QFont::Bold));
    painter.setPen(color);
    painter.drawText(place, Qt::AlignCenter, mark);
}

void drawInformation(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(SystemPalette::blue);
    painter.drawEllipse(QRectF(12, 12, 168, 168));
    drawMark(painter, u"i"_s, SystemPalette::white, QRectF(0, 0, side, side));
}

void drawWarning(QPainter& painter) {
    painter.setBrush(SystemPalette::yellow);
    painter.setPen(QPen(SystemPalette::yellow, 24, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(triangle());
    drawMark(painter, u"!"_s, SystemPalette::windowBackground, QRectF(0, 20, side, side - 20));
}

} // namespace

QIcon alertIcon(AlertContent::Style style) {
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    style == AlertContent::Style::warning ? drawWarning(painter) : drawInformation(painter);
    painter.end();
    return QIcon(picture);
}

} // namespace tessaline
