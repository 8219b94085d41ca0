#include "ui/controls/IconImage.h"

#include <QPainter>

namespace tessaline {

IconImage::IconImage(const QIcon& shown, int size, QWidget* parent) : QLabel(parent), icon(shown) {
    setFixedSize(size, size);
}

// QIcon never enlarges a small picture; here it must fill the square.
void IconImage::paintEvent(QPaintEvent*) {
    const QPixmap picture = icon.pixmap(size() * 2, devicePixelRatioF());
    if (picture.isNull()) return;
    QRectF place(QPointF(), QSizeF(picture.size()).scaled(QSizeF(size()), Qt::KeepAspectRatio));
    place.moveCenter(QRectF(rect()).center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(place, picture, QRectF(picture.rect()));
}

} // namespace tessaline
