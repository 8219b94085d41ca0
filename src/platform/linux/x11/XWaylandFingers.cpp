#include "platform/linux/x11/XWaylandFingers.h"

#include <cmath>

namespace tessaline {

namespace {

constexpr std::uint32_t longestPause = 100; // milliseconds
constexpr double wholeTolerance = 1e-4;     // positions come as fixed-point numbers

} // namespace

bool XWaylandFingers::moved(double notches, std::uint32_t time) {
    const bool isWhole = std::abs(notches - std::round(notches)) <= wholeTolerance;
    const bool isMoving = lastMove && time - *lastMove <= longestPause;
    if (isWhole && !isMoving) return false;
    lastMove = time;
    return true;
}

} // namespace tessaline
