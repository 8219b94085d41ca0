#pragma once

#include "platform/Screen.h"

#include <optional>
#include <vector>

namespace tessaline {

/// The displays that are attached now.
class Screens {
public:
    /// What an adapter posts after displays came, went, moved or changed, once the answers here are
    /// the new ones.
    static QString parametersDidChangeNotification() {
        return QStringLiteral("ApplicationDidChangeScreenParameters");
    }

    virtual ~Screens() = default;

    /// Every display, in the system's order.
    virtual std::vector<Screen> all() const = 0;

    /// The display that holds the window with the keyboard, else the primary one, if there is any.
    virtual std::optional<Screen> mainScreen() const = 0;
};

} // namespace tessaline
