#include "appearance/PointFont.h"

#include <QFontDatabase>
#include <QImage>
#include <QRawFont>

namespace tessaline {

namespace {

constexpr double typographicPointsPerInch = 72.0;

// A new image carries exactly the dots per inch that Qt sizes fonts with, also while no screen is
// connected.
double fontDotsPerInch() {
    return QImage(1, 1, QImage::Format_Mono).logicalDpiY();
}

QFont sized(QFontDatabase::SystemFont role, double points, QFont::Weight weight) {
    QFont font = withPoints(QFontDatabase::systemFont(role), points);
    font.setWeight(weight);
    return font;
}

} // namespace

QFont systemFont(double points, QFont::Weight weight) {
    return sized(QFontDatabase::GeneralFont, points, weight);
}

QFont monospacedFont(double points, QFont::Weight weight) {
    QFont font = sized(QFontDatabase::FixedFont, points, weight);
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    return font;
}

QFont monospacedDigitFont(double points, QFont::Weight weight) {
    QFont font = systemFont(points, weight);
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
    font.setFeature("tnum", 1);
#endif
    return font;
}

// QFont::setPixelSize would say it directly, but only in whole pixels.
QFont withPoints(QFont font, double points) {
    font.setPointSizeF(points * typographicPointsPerInch / fontDotsPerInch());
    return font;
}

double pointsOf(const QFont& font) {
    if (font.pixelSize() > 0) return font.pixelSize();
    return font.pointSizeF() * fontDotsPerInch() / typographicPointsPerInch;
}

double drawnPointsOf(const QFont& font) {
    return QRawFont::fromFont(font).pixelSize();
}

} // namespace tessaline
