#pragma once

#include <cstdint>

namespace tessaline {

/// A font as the renderer names it; the view resolves it to a real one.
struct TextFont {
    enum class Family : std::uint8_t { system, monospaced };
    enum class Weight : std::uint8_t { regular, medium, bold };

    Family family = Family::system;
    Weight weight = Weight::medium;
    bool italic = false;
    double size = 0.0; ///< points

    bool operator==(const TextFont&) const = default;
};

} // namespace tessaline
