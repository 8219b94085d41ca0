#pragma once

#include <cstdint>

namespace tessaline {

/// What tells a display from every other one.
struct ScreenIdentity {
    std::uint32_t id = 0; ///< as in `Screen`
    bool builtIn = false;
};

} // namespace tessaline
