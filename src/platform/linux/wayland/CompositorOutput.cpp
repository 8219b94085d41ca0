#include "platform/linux/wayland/CompositorOutput.h"

#include <algorithm>
#include <cstdlib>

namespace tessaline {

namespace {

/// Sizes of scaled monitors are rounded, by each server in its own way.
bool areAlike(const QRect& one, const QRect& other) {
    return one.topLeft() == other.topLeft() && std::abs(one.width() - other.width()) <= 1 &&
           std::abs(one.height() - other.height()) <= 1;
}

} // namespace

std::optional<CompositorOutput> outputIn(const QRect& area, bool isOnly,
                                         const std::vector<CompositorOutput>& outputs) {
    if (isOnly && outputs.size() == 1) return outputs.front();
    const auto isThere = [&](const CompositorOutput& output) {
        return areAlike(output.area, area);
    };
    // Monitors that show the same are in the same place.
    if (std::ranges::count_if(outputs, isThere) != 1) return std::nullopt;
    return *std::ranges::find_if(outputs, isThere);
}

} // namespace tessaline
