#pragma once

#include "platform/ModifierFlags.h"

#include <QString>

namespace tessaline {

/// A key that went down.
struct KeyEvent {
    /// Key codes that are the same on every keyboard layout.
    static constexpr int upArrow = 126;
    static constexpr int downArrow = 125;

    QString characters; ///< what the key means on the present layout without Control and Command
    int keyCode = -1;   ///< one of the above, or anything else
    ModifierFlags modifiers = 0;
    bool isRepeat = false; ///< the key was down already and is being held
};

} // namespace tessaline
