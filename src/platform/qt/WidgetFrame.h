#pragma once

#include "platform/Rect.h"

class QWidget;

namespace tessaline {

/// Moves and sizes a window without a frame, where windows may choose their place. In points.
void setFrame(QWidget& window, const Rect& frame);

/// Where such a window is.
Rect frameOf(const QWidget& window);

} // namespace tessaline
