#pragma once

#include <cstdint>

namespace tessaline {

/// A colour as the renderer names it: one of three bases at an alpha.
struct TextColor {
    enum class Base : std::uint8_t { text, systemGreen, white };

    Base base = Base::text;
    double alpha = 1.0;

    /// The same base at another alpha.
    constexpr TextColor withAlpha(double newAlpha) const { return {base, newAlpha}; }

    bool operator==(const TextColor&) const = default;
};

/// The prompter's text colour, a warm amber, as calibrated RGB components from 0 to 1.
struct AmberComponents {
    static constexpr double red = 0.82;
    static constexpr double green = 0.71;
    static constexpr double blue = 0.55;
};

} // namespace tessaline
