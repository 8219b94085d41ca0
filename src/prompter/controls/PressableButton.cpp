#include "prompter/controls/PressableButton.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "prompter/controls/GlyphOutline.h"

#include <QIcon>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessaline {

namespace {

constexpr double cornerRadius = 4.0;
constexpr double glyphMargin = 3.0;

// The shape that a text makes. None where its font has pictures instead of outlines.
QPainterPath outlineOf(const QString& text, const QFont& font) {
    if (auto glyph = glyphOutline(text, pointsOf(font), font.weight())) return *std::move(glyph);
    QPainterPath path;
    path.addText(QPointF(), font, text);
    return path;
}

QRectF inkOf(const QString& text, const QFont& font) {
    const QPainterPath outline = outlineOf(text, font);
    return outline.isEmpty() ? QFontMetricsF(font).tightBoundingRect(text) : outline.boundingRect();
}

// Where to move ink so that it is centred with its upper left corner on a device pixel, which keeps
// upright edges sharp.
QPointF centringOffset(const QRectF& ink, const QRectF& bounds, double pixelRatio) {
    QRectF centred = ink;
    centred.moveCenter(bounds.center());
    const QPointF corner = centred.topLeft() * pixelRatio;
    return QPointF(std::round(corner.x()), std::round(corner.y())) / pixelRatio - ink.topLeft();
}

} // namespace

PressableButton::PressableButton(QWidget* parent) : TrackedButton(parent) {}

PressableButton::PressableButton(const QString& glyph, double points, QWidget* parent)
    : TrackedButton(parent) {
    setGlyph(glyph, points);
}

void PressableButton::setGlyph(const QString& glyph, double points, QFont::Weight weight) {
    setFont(systemFont(points, weight));
    setText(glyph);
}

double PressableButton::alpha() const {
    if (isPressed() || !isEnabled()) return pressedAlpha;
    return isHovered() ? hoverAlpha : normalAlpha;
}

std::optional<QColor> PressableButton::backgroundColor() const {
    return isPressed() && pressedBackgroundColor ? pressedBackgroundColor : normalBackgroundColor;
}

QSize PressableButton::sizeHint() const {
    if (!icon().isNull()) return iconSize();
    const QRectF ink = inkOf(text(), font());
    const double side = std::ceil(pointsOf(font())) + glyphMargin;
    return {static_cast<int>(std::ceil(std::max(ink.width() + 2 * glyphMargin, side))),
            static_cast<int>(std::ceil(std::max(ink.height() + 2 * glyphMargin, side)))};
}

void PressableButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(alpha());
    if (const auto background = backgroundColor()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(*background);
        painter.drawRoundedRect(QRectF(rect()), cornerRadius, cornerRadius);
    }
    if (icon().isNull()) {
        paintGlyph(painter);
    } else {
        icon().paint(&painter, rect());
    }

    painter.setOpacity(1.0);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
    paintFocusRing(painter, outline);
}

void PressableButton::paintGlyph(QPainter& painter) const {
    painter.save();
    painter.translate(centringOffset(inkOf(text(), font()), rect(), devicePixelRatioF()));
    if (const auto outline = glyphOutline(text(), pointsOf(font()), font().weight())) {
        painter.fillPath(*outline, SystemPalette::white);
    } else {
        painter.setFont(font());
        painter.setPen(SystemPalette::white);
        painter.drawText(QPointF(), text());
    }
    painter.restore();
}

} // namespace tessaline
