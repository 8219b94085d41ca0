#pragma once

namespace tessaline {

struct Rect;
struct Screen;

/// What a window beside the prompter takes with its frame and everything in sight, in points, and
/// how much wider it is while it scrolls.
struct SideWindowSize {
    double width = 0.0;
    double height = 0.0;
    double scrollBar = 0.0;
};

/// Where it goes, in points.
struct SideWindowPlacement {
    double left = 0.0;
    double top = 0.0;
    double room = 0.0; ///< the height that there is for it, frame and all
    bool belowPrompter = false;

    bool operator==(const SideWindowPlacement&) const = default;
};

/// Centred on the screen, directly below the prompter, which hangs from the screen's top edge,
/// where that leaves all of the window in sight. Else beside the prompter, on the wider side, and
/// over it as far as that side is too narrow. Always in the visible part of the screen.
SideWindowPlacement placeSideWindow(const SideWindowSize& size, const Screen& screen,
                                    const Rect& prompter);

} // namespace tessaline
