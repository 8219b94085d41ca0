#include "platform/linux/x11/ScrollAxis.h"

#include <cmath>

namespace tessaline {

namespace {

// Toolkits scroll by three lines of about 20 points for an increment; a touchpad is to feel the
// same over the prompter.
constexpr double pointsPerIncrement = 60.0;
constexpr double wholeLineTolerance = 1e-4; // positions come as fixed-point numbers

} // namespace

ScrollAxis::ScrollAxis(double axisIncrement, Source axisSource)
    : increment(axisIncrement), source(axisSource) {}

void ScrollAxis::restartAt(double position) {
    value = position;
}

ScrollAxis::Delta ScrollAxis::moveTo(double position, std::uint32_t time) {
    const double lines = (value - position) / increment;
    value = position;
    if (source == Source::xWayland) return byXWayland(lines, time);
    if (std::abs(lines - std::round(lines)) > wholeLineTolerance) isSmooth = true;
    if (isSmooth) return {.isPrecise = true, .amount = lines * pointsPerIncrement};
    return {.isPrecise = false, .amount = std::round(lines)};
}

ScrollAxis::Delta ScrollAxis::byXWayland(double lines, std::uint32_t time) {
    if (fingers.moved(lines, time))
        return {.isPrecise = true, .amount = lines * XWaylandFingers::pointsPerNotch};
    return {.isPrecise = false, .amount = std::round(lines)};
}

} // namespace tessaline
