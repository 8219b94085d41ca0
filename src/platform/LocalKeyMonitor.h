#pragma once

#include "platform/KeyEvent.h"

#include <functional>
#include <memory>

namespace tessaline {

/// Hears keys that are pressed in windows of this program, before those do.
class LocalKeyMonitor {
public:
    /// True: the key was used, and the window does not get it.
    using Handler = std::function<bool(const KeyEvent&)>;

    /// Listens for as long as it lives.
    class Registration {
    public:
        virtual ~Registration() = default;
    };

    virtual ~LocalKeyMonitor() = default;

    /// Delivers every key that goes down, and those that repeat because they are held.
    virtual std::unique_ptr<Registration> start(Handler handler) = 0;
};

} // namespace tessaline
