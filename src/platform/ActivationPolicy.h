#pragma once

namespace tessaline {

/// How the program presents itself to the desktop.
class ActivationPolicy {
public:
    enum class Kind {
        regular,  ///< an application with a Dock icon and a menu
        accessory ///< a helper in the menu bar only
    };

    virtual ~ActivationPolicy() = default;

    virtual void set(Kind kind) = 0;

    /// Brings the program to the front, before whatever the user works with now.
    virtual void activateIgnoringOtherApps() = 0;
};

} // namespace tessaline
