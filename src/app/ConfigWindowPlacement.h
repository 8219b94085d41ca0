#pragma once

namespace tessaline {

struct Rect;
struct Screen;

/// What the settings window takes with its frame and everything in sight, in points, and how much
/// wider it is while it scrolls.
struct ConfigWindowSize {
    double width = 0.0;
    double height = 0.0;
    double scrollBar = 0.0;
};

/// Where the settings window goes, in points.
struct ConfigWindowPlacement {
    double left = 0.0;
    double top = 0.0;
    double room = 0.0; ///< the height that there is for it, frame and all
    bool belowPrompter = false;

    bool operator==(const ConfigWindowPlacement&) const = default;
};

/// Centred on the screen, directly below the prompter, which hangs from the screen's top edge,
/// where that leaves all of the window in sight. Else beside the prompter, on the wider side, and
/// over it as far as that side is too narrow. Always in the visible part of the screen.
ConfigWindowPlacement placeConfigWindow(const ConfigWindowSize& size, const Screen& screen,
                                        const Rect& prompter);

} // namespace tessaline
