#include "export/PngRendering.h"

#include "prompter/layout/ScriptLayout.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int horizontalInset = 15;
constexpr int verticalInset = 10;

/// Drawing in strips of so many pixels keeps few paragraphs laid out at a time.
constexpr int stripHeight = 1024;

void drawStrips(QImage& image, ScriptLayout& layout) {
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.translate(horizontalInset, verticalInset);
    const int bottom = image.height() - verticalInset;
    for (int top = -verticalInset; top < bottom; top += stripHeight) {
        // A line on the border belongs to both strips, and must not be drawn over itself.
        painter.setClipRect(-horizontalInset, top, image.width(), stripHeight);
        layout.draw(painter, top, top + stripHeight, {});
    }
}

std::optional<QByteArray> encoded(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG")) return std::nullopt;
    return bytes;
}

} // namespace

std::optional<QByteArray> pngOf(StyledText styled, int width, QString* error) {
    const auto fail = [error](const QString& reason) {
        if (error) *error = reason;
        return std::nullopt;
    };
    ScriptLayout layout;
    layout.setTextWidth(width - 2 * horizontalInset);
    layout.setScript(std::make_shared<const Script>(std::move(styled)));
    // All heights above the limit are exact now, so the sum is beyond it only if the text is.
    layout.measureBetween(0, tallestPicture);
    const double height = std::ceil(layout.height() + 2 * verticalInset);
    if (height > tallestPicture)
        return fail(u"the picture would be taller than %1 pixels"_s.arg(tallestPicture));

    QImage image(width, int(height), QImage::Format_RGB32);
    if (image.isNull()) return fail(u"not enough memory for the picture"_s);
    image.fill(Qt::black);
    drawStrips(image, layout);
    auto bytes = encoded(image);
    if (!bytes) return fail(u"the picture could not be encoded"_s);
    return bytes;
}

} // namespace tessaline
