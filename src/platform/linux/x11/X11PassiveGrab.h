#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tessaline {

class X11Connection;

/// A key or button that, pressed with certain modifiers, comes to us instead of anybody else. Asks
/// the server not to wait for us, so that no input is ever held up.
struct X11PassiveGrab {
    enum class Kind : std::uint8_t { button = 0, key = 1 };

    Kind kind = Kind::button;
    std::uint32_t detail = 0;             ///< the button or key code
    std::vector<std::uint32_t> modifiers; ///< exact combinations

    /// Grabs for every pointer or keyboard there is and will be. Returns the combinations that
    /// other programs hold.
    std::vector<std::uint32_t> take(const X11Connection& connection) const;

    /// Gives all of them back.
    void release(const X11Connection& connection) const;
};

} // namespace tessaline
