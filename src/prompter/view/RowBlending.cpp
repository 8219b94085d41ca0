#include "prompter/view/RowBlending.h"

#include <cstring>

namespace tessaline {

WIDEST_VECTORS void blendRows(const std::uint8_t* upper, const std::uint8_t* lower,
                              unsigned lowerWeight, std::uint8_t* out, std::size_t count) {
    if (lowerWeight == 0 || lowerWeight == wholeRow) {
        std::memcpy(out, lowerWeight == 0 ? upper : lower, count);
        return;
    }
    const auto upperShare = std::uint16_t(wholeRow - lowerWeight);
    const auto lowerShare = std::uint16_t(lowerWeight);
    constexpr std::uint16_t half = wholeRow / 2;
    for (std::size_t i = 0; i < count; ++i) {
        const auto sum = std::uint16_t(upper[i] * upperShare + lower[i] * lowerShare + half);
        out[i] = std::uint8_t(sum >> 8);
    }
}

} // namespace tessaline
