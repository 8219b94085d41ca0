#pragma once

#include "platform/Rect.h"

#include <QString>

#include <cstdint>

namespace tessaline {

/// One display, as it is arranged now. All coordinates are in points from the bottom left corner of
/// the primary display, y growing upwards.
struct Screen {
    std::uint32_t id = 0; ///< stays the same when the display is plugged in again; 0: unknown
    QString name;
    Rect frame;
    Rect visibleFrame; ///< what menu bars and panels leave of the frame
    bool builtIn = false;
    double refreshRate = 0.0; ///< hertz

    bool operator==(const Screen&) const = default;
};

} // namespace tessaline
