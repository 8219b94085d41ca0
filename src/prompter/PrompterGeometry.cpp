#include "prompter/PrompterGeometry.h"

#include "platform/Screen.h"

#include <algorithm>

namespace tessaline {
namespace {

constexpr double minMenuBarHeight = 24.0;
constexpr double minExpandedHeight = 100.0;
constexpr double textMargins = 20.0;
constexpr double closeButtonHeight = 12.0;

double centred(double width, double available) {
    return (available - width) * 0.5;
}

Rect withHeight(const Rect& frame, double height) {
    return {frame.minX(), frame.maxY() - height, frame.width, height};
}

} // namespace

Rect prompterFrame(const PrompterPlacement& placement, const Rect& screenFrame) {
    const auto [width, height, xOffset] = placement;
    const double wanted = screenFrame.minX() + centred(width, screenFrame.width) + xOffset;
    // Not std::clamp: its bounds would be crossed for a window wider than the screen.
    const double x = std::max(screenFrame.minX(), std::min(wanted, screenFrame.maxX() - width));
    return {x, screenFrame.maxY() - height, width, height};
}

Rect prompterFrameOnMainScreen(const PrompterPlacement& placement, const Rect& screenFrame) {
    const auto [width, height, xOffset] = placement;
    return {centred(width, screenFrame.width) + xOffset, screenFrame.height - height, width,
            height};
}

double menuBarHeight(const std::optional<Screen>& screen) {
    if (!screen) return minMenuBarHeight;
    return std::max(screen->frame.maxY() - screen->visibleFrame.maxY(), minMenuBarHeight);
}

Rect collapsedFrame(const Rect& frame, double menuBarHeight) {
    return withHeight(frame, menuBarHeight);
}

Rect expandedFrame(const Rect& frame, double expandedHeight) {
    return withHeight(frame, std::max(expandedHeight, minExpandedHeight));
}

double textLayoutWidth(double windowWidth) {
    return windowWidth - textMargins;
}

double closeButtonTop(double menuBarHeight) {
    return centred(closeButtonHeight, menuBarHeight);
}

} // namespace tessaline
