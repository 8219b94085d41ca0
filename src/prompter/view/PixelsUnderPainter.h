#pragma once

#include "prompter/view/PixelRows.h"

#include <QImage>
#include <QSize>

#include <optional>

class QPainter;

namespace tessaline {

/// Where a painter would put a picture, with its top left corner at the origin: for whoever writes
/// its pixels there instead of making a picture first. Nothing if what is painted on is not an
/// image in memory, is smaller, or would take the picture's pixels in another size, place or
/// format. Clipping is not looked at.
std::optional<PixelRows> pixelsUnder(const QPainter& painter, const QSize& pixels,
                                     double devicePixelRatio, QImage::Format format);

} // namespace tessaline
