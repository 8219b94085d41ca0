#include "prompter/view/PixelsUnderPainter.h"

#include <QPaintEngine>
#include <QPainter>
#include <QTransform>

namespace tessaline {

namespace {

/// The image that is painted on. Nobody shares what it holds meanwhile.
QImage* imageUnder(const QPainter& painter) {
    const QPaintEngine* engine = painter.paintEngine();
    if (!engine || engine->type() != QPaintEngine::Raster) return nullptr;
    QPaintDevice* device = engine->paintDevice();
    if (!device || device->devType() != QInternal::Image) return nullptr;
    return static_cast<QImage*>(device);
}

/// Whether pixels of a format are stored in an image as they are. Opaque ones are the same with and
/// without what tells how opaque.
bool takes(const QImage& image, QImage::Format format) {
    return image.format() == format || (image.format() == QImage::Format_ARGB32_Premultiplied &&
                                        format == QImage::Format_RGB32);
}

/// The pixel that the painter's origin is the corner of.
std::optional<QPoint> originPixel(const QPainter& painter, double devicePixelRatio) {
    const QTransform& transform = painter.deviceTransform();
    const QPoint pixel = QPointF(transform.dx(), transform.dy()).toPoint();
    const QTransform wanted(devicePixelRatio, 0, 0, devicePixelRatio, pixel.x(), pixel.y());
    if (transform != wanted) return std::nullopt;
    return pixel;
}

} // namespace

std::optional<PixelRows> pixelsUnder(const QPainter& painter, const QSize& pixels,
                                     double devicePixelRatio, QImage::Format format) {
    QImage* image = imageUnder(painter);
    if (!image || !takes(*image, format)) return std::nullopt;
    const std::optional<QPoint> origin = originPixel(painter, devicePixelRatio);
    if (!origin || !image->rect().contains(QRect(*origin, pixels))) return std::nullopt;
    constexpr qsizetype bytesPerPixel = 4;
    return PixelRows{.first = image->scanLine(origin->y()) + origin->x() * bytesPerPixel,
                     .bytesPerRow = image->bytesPerLine(),
                     .width = pixels.width(),
                     .height = pixels.height()};
}

} // namespace tessaline
