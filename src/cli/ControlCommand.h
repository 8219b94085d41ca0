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
    pace,
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
    reading,
    paste,
    source,
    guide,
    eyeLine,
    countdown,
    atEnd,
    glide,
    mirror,
    opacity,
    clickThrough,
    font,
    lineSpacing,
    distance,
    quit,
    status,
};

} // namespace tessaline
