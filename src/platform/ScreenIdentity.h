#pragma once

#include <QString>

#include <cstdint>

namespace tessaline {

/// What tells a display from every other one.
struct ScreenIdentity {
    std::uint32_t id = 0; ///< as in `Screen`
    bool builtIn = false;
    QString name{}; ///< empty: as the toolkit calls it
};

} // namespace tessaline
