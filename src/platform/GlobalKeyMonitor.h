#pragma once

#include "platform/KeyEvent.h"

#include <functional>
#include <memory>

namespace tessaline {

/// Hears keys that are pressed while other applications have the keyboard.
class GlobalKeyMonitor {
public:
    using Handler = std::function<void(const KeyEvent&)>;

    /// A chord to listen for.
    struct Chord {
        ModifierFlags modifiers = 0;
        QString characters; ///< one lower-case letter
    };

    /// What the user may give keys to in the desktop's own settings, besides a chord.
    enum class Action { faster, slower, nextHeading, previousHeading, showOrHide };

    /// Listens for as long as it lives.
    class Registration {
    public:
        virtual ~Registration() = default;
    };

    virtual ~GlobalKeyMonitor() = default;

    /// Delivers at least every press of the chord to the handler; which other keys it delivers is
    /// up to the system. Null where that is not possible now, for instance because another program
    /// holds the chord; this is logged.
    virtual std::unique_ptr<Registration> start(const Chord& chord, Handler handler) = 0;

    /// Calls back for each press of such a key, where the desktop has settings of that kind. A
    /// later call replaces the callback.
    virtual void onAction(const std::function<void(Action action)>& /*act*/) {}
};

} // namespace tessaline
