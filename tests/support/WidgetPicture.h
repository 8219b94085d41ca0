#pragma once

#include <QImage>
#include <QRectF>
#include <QWidget>

#include <functional>

namespace tessaline {

/// What a widget draws, on a transparent ground, at so many pixels a point.
QImage pictureOf(QWidget& widget, int pixelsPerPoint = 1);

/// The bounds, in points, of the pixels that the test picks; null if there are none. The picture
/// must come from pictureOf.
QRectF boundsOf(const QImage& picture, const std::function<bool(int x, int y)>& picks);

/// The bounds, in points, of everything at least half opaque.
QRectF inkOf(const QImage& picture);

} // namespace tessaline
