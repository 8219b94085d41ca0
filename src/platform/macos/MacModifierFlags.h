#pragma once

#include "platform/ModifierFlags.h"

#include <cstdint>

namespace tessaline {

/// Our flags have the values of those of NSEvent and CGEvent; the rest (Caps Lock, the number pad,
/// left or right) is dropped.
constexpr ModifierFlags modifierFlagsFromNative(std::uint64_t flags) {
    return static_cast<ModifierFlags>(flags) &
           (Modifier::shift | Modifier::control | Modifier::option | Modifier::command);
}

} // namespace tessaline
