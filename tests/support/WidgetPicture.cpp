#include "support/WidgetPicture.h"

namespace tessaline {

QImage pictureOf(QWidget& widget, int pixelsPerPoint) {
    QImage picture(widget.size() * pixelsPerPoint, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(pixelsPerPoint);
    picture.fill(Qt::transparent);
    widget.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    return picture;
}

QRectF boundsOf(const QImage& picture, const std::function<bool(int x, int y)>& picks) {
    QRect bounds;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picks(x, y)) bounds |= QRect(x, y, 1, 1);
        }
    }
    const double scale = 1.0 / picture.devicePixelRatio();
    return {bounds.x() * scale, bounds.y() * scale, bounds.width() * scale,
            bounds.height() * scale};
}

QRectF inkOf(const QImage& picture) {
    return boundsOf(picture, [&](int x, int y) { return qAlpha(picture.pixel(x, y)) >= 128; });
}

} // namespace tessaline
