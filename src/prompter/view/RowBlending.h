#pragma once

#include <cstddef>
#include <cstdint>

namespace tessaline {

/// Weights of blending: this is one whole row.
inline constexpr unsigned wholeRow = 256;

/// Writes the mean of two rows of bytes: `upper` weighted with what `lowerWeight` leaves of
/// `wholeRow`, `lower` with `lowerWeight`.
void blendRows(const std::uint8_t* upper, const std::uint8_t* lower, unsigned lowerWeight,
               std::uint8_t* out, std::size_t count);

} // namespace tessaline
