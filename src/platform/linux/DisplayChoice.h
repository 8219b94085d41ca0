#pragma once

#include "platform/DisplaySession.h"

namespace tessaline {

/// Asks the session's display servers, on connections of their own.
struct DisplayServerAnswers {
    std::function<bool()> x11;                    ///< whether the X server answers
    std::function<std::optional<bool>()> wayland; ///< whether the compositor offers layers, if any
};

/// How to reach the display.
struct DisplayChoice {
    QString qtPlatform;         ///< Qt's name for it; empty: as Qt's own variable says
    bool hangsOnLayers = false; ///< windows hang over the desktop, and are not Qt's to place
    QString problem;            ///< why there is none, in one line

    bool operator==(const DisplayChoice&) const = default;
};

/// Decides by what the user asks for in the environment, else by what is there. Asks no server that
/// does not matter.
DisplayChoice chooseDisplay(const SessionVariable& variable, const DisplayServerAnswers& answers);

} // namespace tessaline
