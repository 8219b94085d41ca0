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

double overlap(const Rect& a, const Rect& b) {
    const double width = std::min(a.maxX(), b.maxX()) - std::max(a.minX(), b.minX());
    const double height = std::min(a.maxY(), b.maxY()) - std::max(a.minY(), b.minY());
    return width > 0 && height > 0 ? width * height : 0.0;
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

std::optional<Screen> screenBelow(const Rect& frame, const std::vector<Screen>& screens) {
    const auto covered =
        std::max_element(screens.begin(), screens.end(), [&frame](const auto& a, const auto& b) {
            return overlap(frame, a.frame) < overlap(frame, b.frame);
        });
    if (covered == screens.end() || overlap(frame, covered->frame) <= 0) return std::nullopt;
    return *covered;
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
