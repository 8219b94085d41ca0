#include "prompter/view/ScriptFrames.h"

#include "prompter/view/FrameComposition.h"
#include "prompter/view/PixelsUnderPainter.h"

#include <QPainter>
#include <QWidget>

#include <cmath>

namespace tessaline {

void ScriptFrames::fit(const QWidget& view) {
    const double ratio = view.devicePixelRatioF();
    const QSize pixels(int(std::ceil(view.width() * ratio)), int(std::ceil(view.height() * ratio)));
    if (size == pixels && pixelRatio == ratio && look == fittedLook) return;
    size = pixels;
    pixelRatio = ratio;
    hasWholePixels = QSizeF(pixels) == QSizeF(view.size()) * ratio;
    fittedLook = look;
    picture = QImage();
    strips.resize(pixels.width(), pixels.height(), ratio, look);
}

void ScriptFrames::invalidateBetween(double top, double bottom) {
    strips.invalidateRows(qsizetype(std::floor(top * pixelRatio)),
                          qsizetype(std::ceil(bottom * pixelRatio)));
}

void ScriptFrames::prepareAround(double position) {
    const auto top = qsizetype(position * pixelRatio);
    strips.prepare(top + size.height() + StripCache::rowsPerStrip / 2);
    strips.prepare(top - StripCache::rowsPerStrip / 2);
}

void ScriptFrames::paint(QPainter& painter, double position, bool everywhere) {
    const double firstRow = position * pixelRatio;
    const auto rows = everywhere && hasWholePixels
                          ? pixelsUnder(painter, size, pixelRatio, fittedLook.format())
                          : std::nullopt;
    if (rows) {
        composeFrame(strips, firstRow, fittedLook, *rows);
    } else {
        paintPicture(painter, firstRow);
    }
}

void ScriptFrames::paintPicture(QPainter& painter, double firstRow) {
    if (picture.isNull()) {
        picture = QImage(size, fittedLook.format());
        picture.setDevicePixelRatio(pixelRatio);
    }
    composeFrame(strips, firstRow, fittedLook,
                 {.first = picture.bits(),
                  .bytesPerRow = picture.bytesPerLine(),
                  .width = size.width(),
                  .height = size.height()});
    if (!fittedLook.isOpaque()) painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QPointF(0, 0), picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

} // namespace tessaline
