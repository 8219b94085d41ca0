#include "platform/linux/x11/X11Modifiers.h"

#include <array>
#include <utility>

namespace tessaline {

namespace {

constexpr std::array<std::pair<std::uint32_t, ModifierFlags>, 4> meanings{{
    {X11Modifier::shift, Modifier::shift},
    {X11Modifier::control, Modifier::control},
    {X11Modifier::alt, Modifier::option},
    {X11Modifier::super, Modifier::command},
}};

} // namespace

ModifierFlags modifierFlagsFromX11(std::uint32_t state) {
    ModifierFlags flags = 0;
    for (const auto& [bit, flag] : meanings)
        if ((state & bit) != 0) flags |= flag;
    return flags;
}

std::uint32_t x11ModifiersFrom(ModifierFlags flags) {
    std::uint32_t state = 0;
    for (const auto& [bit, flag] : meanings)
        if ((flags & flag) != 0) state |= bit;
    return state;
}

std::vector<std::uint32_t> modifierCombinations(std::uint32_t always, std::uint32_t sometimes) {
    std::vector<std::uint32_t> combinations;
    // Counts through the subsets of `sometimes`, from all of it down to none.
    for (std::uint32_t subset = sometimes;; subset = (subset - 1) & sometimes) {
        combinations.push_back(always | subset);
        if (subset == 0) return combinations;
    }
}

} // namespace tessaline
