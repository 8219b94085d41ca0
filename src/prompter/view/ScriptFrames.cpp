#include "prompter/view/ScriptFrames.h"

#include <QPainter>
#include <QWidget>

#include <cmath>

namespace tessaline {

void ScriptFrames::fit(const QWidget& view) {
    const double ratio = view.devicePixelRatioF();
    const QSize pixels(int(std::ceil(view.width() * ratio)), int(std::ceil(view.height() * ratio)));
    const QImage& frame = composer.frame();
    if (frame.size() == pixels && frame.devicePixelRatio() == ratio && look == fittedLook) return;
    fittedLook = look;
    composer.resize(pixels, ratio, look);
    strips.resize(pixels.width(), pixels.height(), ratio, look);
}

void ScriptFrames::invalidateBetween(double top, double bottom) {
    const double ratio = pixelRatio();
    strips.invalidateRows(qsizetype(std::floor(top * ratio)), qsizetype(std::ceil(bottom * ratio)));
}

void ScriptFrames::prepareAround(double position) {
    const auto top = qsizetype(position * pixelRatio());
    strips.prepare(top + composer.frame().height() + StripCache::rowsPerStrip / 2);
    strips.prepare(top - StripCache::rowsPerStrip / 2);
}

void ScriptFrames::paint(QPainter& painter) const {
    if (!look.isOpaque()) painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QPointF(0, 0), composer.frame());
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

} // namespace tessaline
