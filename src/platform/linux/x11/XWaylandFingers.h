#pragma once

#include <cstdint>
#include <optional>

namespace tessaline {

/// Tells fingers on a touchpad from a wheel where XWayland has one device for both: it makes a
/// wheel's notch of every ten points that fingers move, so that what is not whole is theirs, and
/// what is whole as well while they move.
class XWaylandFingers {
public:
    static constexpr double pointsPerNotch = 10.0;

    /// Whether fingers scrolled by so many notches. Times are milliseconds that may overflow.
    bool moved(double notches, std::uint32_t time);

private:
    std::optional<std::uint32_t> lastMove;
};

} // namespace tessaline
