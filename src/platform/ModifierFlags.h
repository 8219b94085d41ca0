#pragma once

#include <cstdint>

namespace tessaline {

/// The modifier keys held during an event: the sum of the flags below, other bits clear.
using ModifierFlags = std::uint32_t;

namespace Modifier {

inline constexpr ModifierFlags shift = 0x20000;
inline constexpr ModifierFlags control = 0x40000;
inline constexpr ModifierFlags option = 0x80000;   ///< Alt
inline constexpr ModifierFlags command = 0x100000; ///< Super

} // namespace Modifier

} // namespace tessaline
