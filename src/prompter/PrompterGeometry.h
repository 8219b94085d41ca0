#pragma once

#include "platform/Rect.h"

#include <optional>
#include <vector>

namespace tessaline {

struct Screen;

/// Where the user wants the prompter, in points.
struct PrompterPlacement {
    double width = 0.0;
    double height = 0.0;
    double xOffset = 0.0; ///< from the screen's centre
};

/// The prompter's place on a screen: hanging from the top edge, centred plus the offset, but never
/// beyond the sides. A prompter wider than the screen starts at its left edge.
Rect prompterFrame(const PrompterPlacement& placement, const Rect& screenFrame);

/// The place on the main screen that serves until the window knows of a choice of screens: computed
/// from the screen's size alone, and not held within its sides.
Rect prompterFrameOnMainScreen(const PrompterPlacement& placement, const Rect& screenFrame);

/// The screen that most of a window with this frame is on, if any of it is on one.
std::optional<Screen> screenBelow(const Rect& frame, const std::vector<Screen>& screens);

/// The height of the strip that a menu bar or panel at the top of the screen takes, 24 at least.
/// Also 24 when there is no screen.
double menuBarHeight(const std::optional<Screen>& screen);

/// The window's frame after collapsing into a strip of the given height; the top edge stays.
Rect collapsedFrame(const Rect& frame, double menuBarHeight);

/// The window's frame after expanding to the given height, 100 at least; the top edge stays.
Rect expandedFrame(const Rect& frame, double expandedHeight);

/// The width in which the text is laid out in a window of the given width.
double textLayoutWidth(double windowWidth);

/// The distance of the close button from the window's top that centres it in the strip.
double closeButtonTop(double menuBarHeight);

} // namespace tessaline
