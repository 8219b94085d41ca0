#include "app/StatusIcon.h"

#include "platform/StatusArea.h"

#include <QPainter>
#include <QPixmap>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int points = 18;
constexpr QColor bodyColor{128, 128, 134};

/// The sizes, in pixels, that panels ask for; others are scaled from these.
constexpr int sizes[] = {16, 18, 22, 24, 32, 36, 44, 48, 54, 64};

} // namespace

QString statusIconDescription() {
    return u"Tessaline"_s;
}

QImage drawStatusIcon(int pixels) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    // Coordinates as on paper: in points, from the bottom left corner.
    const double scale = double(pixels) / points;
    painter.translate(0, pixels);
    painter.scale(scale, -scale);
    painter.setBrush(bodyColor);
    painter.drawRoundedRect(QRectF(2, 4, 14, 10), 3, 3);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(6, 10, 6, 4), 1.5, 1.5);
    return image;
}

QIcon statusIcon(const StatusArea& area) {
    QIcon icon;
    QImage symbol = area.symbol(u"rectangle.topthird.inset.filled"_s, statusIconDescription());
    if (symbol.isNull()) {
        for (const int size : sizes)
            icon.addPixmap(QPixmap::fromImage(drawStatusIcon(size)));
    } else {
        symbol.setDevicePixelRatio(double(symbol.width()) / points);
        icon.addPixmap(QPixmap::fromImage(symbol));
    }
    icon.setIsMask(true);
    return icon;
}

} // namespace tessaline
