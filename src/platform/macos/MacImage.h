#pragma once

#include <QImage>

#include <CoreGraphics/CoreGraphics.h>

namespace tessaline {

/// The native image drawn at this size, in pixels; a null image if there is nothing to draw.
QImage imageFromNative(CGImageRef image, const QSize& size);

} // namespace tessaline
