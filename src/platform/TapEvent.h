#pragma once

#include "platform/ModifierFlags.h"

namespace tessaline {

/// An event of the pointer, seen before other applications see it.
struct TapEvent {
    enum class Type {
        tapDisabled, ///< not an event of the pointer: the system switched the tap off
        scrollWheel,
        otherMouseDown, ///< any button but the left and the right one
        rightMouseDown,
        other
    };

    Type type = Type::other;
    ModifierFlags modifiers = 0;
    int buttonNumber = 0;   ///< 0 left, 1 right, 2 middle, 3 fourth, and so on
    bool isReadable = true; ///< false: a scroll event whose amounts cannot be read
    bool hasPreciseDeltas = false;
    double scrollingDeltaY = 0.0; ///< points if precise, else lines; positive is up
};

} // namespace tessaline
