#pragma once

#include <QPoint>
#include <QWidget>

namespace tessaline {

/// Tells a widget, shown or not, that the pointer came in or went out.
void pointerEnters(QWidget& widget);
void pointerLeaves(QWidget& widget);

/// The left button goes down or up at a place in the widget, or the pointer is dragged there.
void mouseDown(QWidget& widget, QPoint place);
void mouseDrag(QWidget& widget, QPoint place);
void mouseUp(QWidget& widget, QPoint place);

/// One notch of the wheel, towards the reader.
void wheelDown(QWidget& widget);

} // namespace tessaline
