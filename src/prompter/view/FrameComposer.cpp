#include "prompter/view/FrameComposer.h"

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

} // namespace

void FrameComposer::resize(const QSize& pixels, double devicePixelRatio, const FrameLook& newLook) {
    look = newLook;
    image = QImage(pixels, look.format());
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(look.ground());
    drawn.assign(std::size_t(std::max(image.height(), 0)), {});
}

void FrameComposer::compose(StripCache& strips, double firstRow) {
    auto index = qsizetype(std::floor(firstRow));
    const auto lowerWeight = unsigned(std::lround((firstRow - double(index)) * wholeRow));
    StripCache::Row upper = strips.row(index);
    for (int row = 0; row < image.height(); ++row) {
        const StripCache::Row lower = strips.row(++index);
        composeRow(look.isUpsideDown() ? image.height() - 1 - row : row, upper, lower, lowerWeight);
        upper = lower;
    }
}

void FrameComposer::clear(std::uint8_t* row, int begin, int end) const {
    auto* pixels = reinterpret_cast<QRgb*>(row);
    if (begin < end) std::fill(pixels + begin, pixels + end, look.ground());
}

void FrameComposer::composeRow(int row, const StripCache::Row& upper, const StripCache::Row& lower,
                               unsigned lowerWeight) {
    PixelRange& before = drawn[std::size_t(row)];
    const PixelRange range = united(upper.seen, lower.seen);
    if (before.isEmpty() && range.isEmpty()) return;
    std::uint8_t* out = image.scanLine(row);
    if (range.isEmpty()) {
        clear(out, before.begin, before.end);
    } else {
        clear(out, before.begin, std::min(before.end, range.begin));
        clear(out, std::max(before.begin, range.end), before.end);
        const std::size_t offset = std::size_t(range.begin) * bytesPerPixel;
        blendRows(upper.pixels + offset, lower.pixels + offset, lowerWeight, out + offset,
                  std::size_t(range.end - range.begin) * bytesPerPixel);
    }
    before = range;
}

} // namespace tessaline
