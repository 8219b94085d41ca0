#include "platform/FiringGrid.h"

#include <algorithm>
#include <cmath>

namespace tessaline {

FiringGrid::FiringGrid(Interval length) : interval(length) {}

std::chrono::milliseconds FiringGrid::waitForNext(Interval elapsed) {
    firings = std::max(firings, std::floor(elapsed / interval)) + 1;
    return std::chrono::round<std::chrono::milliseconds>(firings * interval - elapsed);
}

} // namespace tessaline
