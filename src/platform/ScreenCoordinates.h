#pragma once

#include "platform/Rect.h"

#include <QRect>

namespace tessaline {

/// The primary screen in Qt's coordinates, or an empty rectangle. Needs the QGuiApplication.
QRect primaryGeometry();

/// Translates a rectangle from Qt's coordinates (top left origin, y downwards) to ours: from the
/// bottom left corner of the primary screen, y upwards. `primary` is that screen in Qt's
/// coordinates.
Rect fromQtCoordinates(const QRect& rect, const QRect& primary);

/// The way back, rounded to whole points: the edges are rounded, so neighbours stay neighbours.
QRect toQtCoordinates(const Rect& rect, const QRect& primary);

} // namespace tessaline
