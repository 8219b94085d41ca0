#pragma once

#include <QColor>

class QPainter;
class QPointF;
class QWidget;

namespace tessaline {

/// How far, in points, what stands in a bezel keeps from its sides.
inline constexpr int bezelPadding = 10;

/// Draws the rounded ground of a button over the whole widget: lighter while `pressed`, dimmed
/// while the widget is disabled, ringed while it has the focus by keyboard.
void drawBezel(QPainter& painter, const QWidget& widget, QColor ground, bool pressed);

/// How far the arrows go from their tips, to either side.
inline constexpr int arrowReach = 3;

/// Draws an arrow up and an arrow down, one above the other around this point.
void drawArrows(QPainter& painter, const QPointF& middle);

} // namespace tessaline
