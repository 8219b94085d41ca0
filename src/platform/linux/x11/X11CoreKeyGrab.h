#pragma once

#include <cstdint>
#include <vector>

namespace tessaline {

class X11Connection;

/// A key with certain modifiers, taken the way most programs do. The server does not compare such
/// grabs with those of XInput: one of ours would silently win over that of a program that came
/// first, and another program would not learn that ours keeps the key from it.
struct X11CoreKeyGrab {
    std::uint32_t key = 0;
    std::vector<std::uint32_t> modifiers; ///< exact combinations

    /// Grabs all combinations, or some of them and returns false: another program holds the others.
    bool take(const X11Connection& connection) const;

    /// Gives back those that are ours.
    void release(const X11Connection& connection) const;
};

} // namespace tessaline
