#pragma once

#include "platform/ModifierFlags.h"

#include <cstdint>
#include <vector>

namespace tessaline {

/// The modifier bits of the X server. Keyboard descriptions of all layouts put Alt and Super where
/// they are here.
namespace X11Modifier {

inline constexpr std::uint32_t shift = 1U << 0U;
inline constexpr std::uint32_t capsLock = 1U << 1U;
inline constexpr std::uint32_t control = 1U << 2U;
inline constexpr std::uint32_t alt = 1U << 3U;
inline constexpr std::uint32_t numLock = 1U << 4U;
inline constexpr std::uint32_t mod3 = 1U << 5U; ///< Scroll Lock or the fifth level
inline constexpr std::uint32_t super = 1U << 6U;
inline constexpr std::uint32_t mod5 = 1U << 7U; ///< the third level

/// Those that are none of our modifier flags.
inline constexpr std::uint32_t ignored = capsLock | numLock | mod3 | mod5;

} // namespace X11Modifier

/// Our flags for the modifier bits of an event.
ModifierFlags modifierFlagsFromX11(std::uint32_t state);

/// The modifier bits for our flags.
std::uint32_t x11ModifiersFrom(ModifierFlags flags);

/// Every combination of `always` with some, all or none of `sometimes`, for a grab, which takes
/// exact combinations only.
std::vector<std::uint32_t> modifierCombinations(std::uint32_t always, std::uint32_t sometimes);

} // namespace tessaline
