#pragma once

#include <QtGlobal>

#include <cstdint>

namespace tessaline {

/// Rows of pixels of four bytes each that somebody else owns, in an image or in a part of one.
struct PixelRows {
    std::uint8_t* first = nullptr;
    qsizetype bytesPerRow = 0; ///< from one row to the next
    int width = 0;             ///< in pixels
    int height = 0;

    std::uint8_t* row(int index) const { return first + index * bytesPerRow; }
};

} // namespace tessaline
