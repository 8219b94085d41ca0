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
    scroll,
    top,
    nextHeading,
    previousHeading,
    heading,
    paragraph,
    show,
    hide,
    minimize,
    expand,
    settings,
    reading,
    keys,
    paste,
    source,
    black,
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
    suggest,
    open,
    latest,
    continueReading,
    mediaKeys,
    remote,
    quit,
    status,
};

} // namespace tessaline
