#include "prompter/view/FrameComposition.h"

#include "prompter/view/RowBlending.h"

#include <algorithm>
#include <cmath>

namespace tessaline {

namespace {

constexpr std::size_t bytesPerPixel = 4;

PixelRange united(const PixelRange& one, const PixelRange& other) {
    if (one.isEmpty()) return other;
    if (other.isEmpty()) return one;
    return {std::min(one.begin, other.begin), std::max(one.end, other.end)};
}

void composeRow(const StripCache::Row& upper, const StripCache::Row& lower, unsigned lowerWeight,
                QRgb ground, std::uint8_t* out, int width) {
    const PixelRange range = united(upper.seen, lower.seen);
    auto* const pixels = reinterpret_cast<QRgb*>(out);
    if (range.isEmpty()) {
        std::fill(pixels, pixels + width, ground);
        return;
    }
    std::fill(pixels, pixels + range.begin, ground);
    const std::size_t offset = std::size_t(range.begin) * bytesPerPixel;
    blendRows(upper.pixels + offset, lower.pixels + offset, lowerWeight, out + offset,
              std::size_t(range.end - range.begin) * bytesPerPixel);
    std::fill(pixels + range.end, pixels + width, ground);
}

} // namespace

void composeFrame(StripCache& strips, double firstRow, const FrameLook& look,
                  const PixelRows& frame) {
    auto index = qsizetype(std::floor(firstRow));
    const auto lowerWeight = unsigned(std::lround((firstRow - double(index)) * wholeRow));
    StripCache::Row upper = strips.row(index);
    for (int row = 0; row < frame.height; ++row) {
        const StripCache::Row lower = strips.row(++index);
        composeRow(upper, lower, lowerWeight, look.ground(),
                   frame.row(look.isUpsideDown() ? frame.height - 1 - row : row), frame.width);
        upper = lower;
    }
}

} // namespace tessaline
