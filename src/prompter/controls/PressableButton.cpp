#include "prompter/controls/PressableButton.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "prompter/controls/GlyphOutline.h"

#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessaline {

namespace {

constexpr double cornerRadius = 4.0;
constexpr double glyphMargin = 3.0;

// The shape that a text makes. None where its font has pictures instead of outlines.
QPainterPath outlineOf(const QString& text, const QFont& font, double pixelRatio) {
    if (auto glyph = glyphOutline(text, pointsOf(font), font.weight(), pixelRatio))
        return *std::move(glyph);
    QPainterPath path;
    path.addText(QPointF(), font, text);
    return path;
}

QRectF inkOf(const QString& text, const QFont& font, double pixelRatio) {
    const QPainterPath outline = outlineOf(text, font, pixelRatio);
    return outline.isEmpty() ? QFontMetricsF(font).tightBoundingRect(text) : outline.boundingRect();
}

// Where to move ink so that it is centred with its upper left corner on a device pixel, which keeps
// upright edges sharp. At a fractional scale the widget itself may begin within a pixel.
QPointF centringOffset(const QRectF& ink, const QRectF& bounds, const QTransform& toDevice) {
    QRectF centred = ink;
    centred.moveCenter(bounds.center());
    const QPointF corner = toDevice.map(centred.topLeft());
    const QPointF onPixel(std::round(corner.x()), std::round(corner.y()));
    return toDevice.inverted().map(onPixel) - ink.topLeft();
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
    const QRectF ink = inkOf(text(), font(), devicePixelRatioF());
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
    const double pixelRatio = devicePixelRatioF();
    const QRectF ink = inkOf(text(), font(), pixelRatio);
    painter.translate(centringOffset(ink, rect(), painter.deviceTransform()));
    if (const auto outline = glyphOutline(text(), pointsOf(font()), font().weight(), pixelRatio)) {
        painter.fillPath(*outline, SystemPalette::white);
    } else {
        painter.setFont(font());
        painter.setPen(SystemPalette::white);
        painter.drawText(QPointF(), text());
    }
    painter.restore();
}

} // namespace tessaline
