#include "platform/linux/x11/ScrollAxis.h"

#include <cmath>

namespace tessaline {

namespace {

// Toolkits scroll by three lines of about 20 points for an increment; a touchpad is to feel the
// same over the prompter.
constexpr double pointsPerIncrement = 60.0;
constexpr double wholeLineTolerance = 1e-4; // positions come as fixed-point numbers

} // namespace

ScrollAxis::ScrollAxis(double axisIncrement) : increment(axisIncrement) {}

void ScrollAxis::restartAt(double position) {
    value = position;
}

ScrollAxis::Delta ScrollAxis::moveTo(double position) {
    const double lines = (value - position) / increment;
    value = position;
    if (std::abs(lines - std::round(lines)) > wholeLineTolerance) isSmooth = true;
    if (isSmooth) return {.isPrecise = true, .amount = lines * pointsPerIncrement};
    return {.isPrecise = false, .amount = std::round(lines)};
}

} // namespace tessaline
