#include "controls/IconImage.h"

#include <QPainter>

namespace tessaline {

IconImage::IconImage(const QIcon& shown, int side, QWidget* parent) : QLabel(parent) {
    setFixedSize(side, side);
    setIcon(shown);
}

void IconImage::setIcon(const QIcon& newIcon) {
    icon = newIcon;
    setPixmap(icon.pixmap(size(), devicePixelRatioF())); // for screen readers: it is a picture
    update();
}

void IconImage::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double ratio = devicePixelRatioF();
    const QPixmap exact = icon.pixmap(size(), ratio);
    if (exact.size() == (QSizeF(size()) * ratio).toSize())
        return painter.drawPixmap(QPoint(), exact);
    // QIcon never enlarges a small picture; here it must fill the square.
    const QPixmap picture = icon.pixmap(size() * 2, ratio);
    if (picture.isNull()) return;
    QRectF place(QPointF(), QSizeF(picture.size()).scaled(QSizeF(size()), Qt::KeepAspectRatio));
    place.moveCenter(QRectF(rect()).center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(place, picture, QRectF(picture.rect()));
}

} // namespace tessaline
