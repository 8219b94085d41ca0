#pragma once

#include <cstdint>

namespace tessaline {

/// What the running prompter can be told from outside.
enum class ControlCommand : std::uint8_t {
    toggle,
    play,
    pause,
    faster,
    slower,
    speed,
    rate,
    up,
    down,
    top,
    nextHeading,
    previousHeading,
    show,
    hide,
    minimize,
    expand,
    settings,
    paste,
    source,
    quit,
    status,
};

} // namespace tessaline
