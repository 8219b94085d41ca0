#pragma once

#include "platform/linux/x11/XWaylandFingers.h"

#include <cstdint>

namespace tessaline {

/// One scroll axis of a pointing device: it counts up while the content moves down, by one
/// `increment` for what a wheel's notch or a line would be.
class ScrollAxis {
public:
    enum class Source { device, xWayland };

    struct Delta {
        bool isPrecise = false;
        double amount = 0.0; ///< points if precise, else lines; positive is up
    };

    /// `increment` is not zero; a negative one counts the other way.
    explicit ScrollAxis(double increment, Source source = Source::device);

    /// Where the axis is now, without anybody having scrolled for us.
    void restartAt(double position);

    /// By how much the user scrolled, until a time in milliseconds. A device is taken for a wheel,
    /// which tells lines, until it first tells a part of one; XWayland's is now this, now that.
    Delta moveTo(double position, std::uint32_t time);

private:
    Delta byXWayland(double lines, std::uint32_t time);

    double increment;
    Source source;
    double value = 0.0;
    bool isSmooth = false;
    XWaylandFingers fingers;
};

} // namespace tessaline
