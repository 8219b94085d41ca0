#pragma once

#include "settings/ReadingChoices.h"

#include <QColor>
#include <QImage>

#include <cmath>

namespace tessaline {

/// How frames are turned over, and how much of what is below them their ground hides. A plain
/// value; text is always opaque.
struct FrameLook {
    Mirroring mirroring = Mirroring::none;
    double groundOpacity = 1.0;

    /// A pixel of the ground, in the format.
    QRgb ground() const { return qRgba(0, 0, 0, int(std::lround(groundOpacity * 255.0))); }

    bool isOpaque() const { return groundOpacity >= 1.0; }

    QImage::Format format() const {
        return isOpaque() ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied;
    }

    bool isSideways() const {
        return mirroring == Mirroring::horizontal || mirroring == Mirroring::both;
    }

    bool isUpsideDown() const {
        return mirroring == Mirroring::vertical || mirroring == Mirroring::both;
    }

    bool operator==(const FrameLook&) const = default;
};

} // namespace tessaline
