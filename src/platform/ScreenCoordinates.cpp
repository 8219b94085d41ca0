#include "platform/ScreenCoordinates.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

namespace tessaline {
namespace {

int rounded(double value) {
    return static_cast<int>(std::lround(value));
}

} // namespace

QRect primaryGeometry() {
    const QScreen* primary = QGuiApplication::primaryScreen();
    return primary ? primary->geometry() : QRect();
}

// QRect::right and QRect::bottom are one short of the edge, hence the sums.

Rect fromQtCoordinates(const QRect& rect, const QRect& primary) {
    const int bottom = rect.y() + rect.height();
    const int primaryBottom = primary.y() + primary.height();
    return {static_cast<double>(rect.x() - primary.x()),
            static_cast<double>(primaryBottom - bottom), static_cast<double>(rect.width()),
            static_cast<double>(rect.height())};
}

QRect toQtCoordinates(const Rect& rect, const QRect& primary) {
    const int left = rounded(rect.minX());
    const int top = rounded(rect.maxY());
    const int primaryBottom = primary.y() + primary.height();
    return {left + primary.x(), primaryBottom - top, rounded(rect.maxX()) - left,
            top - rounded(rect.minY())};
}

} // namespace tessaline
