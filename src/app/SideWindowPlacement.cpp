#include "app/SideWindowPlacement.h"

#include "platform/Screen.h"

#include <algorithm>

namespace tessaline {

namespace {

/// So far to the left that it ends on the visible part, unless it is wider than that.
double visibleLeft(double left, double width, const Rect& visible) {
    return std::max(visible.minX(), std::min(left, visible.maxX() - width));
}

} // namespace

SideWindowPlacement placeSideWindow(const SideWindowSize& size, const Screen& screen,
                                    const Rect& prompter) {
    const Rect& visible = screen.visibleFrame;
    const double below = std::min(prompter.minY(), visible.maxY());
    const double roomBelow = below - visible.minY();
    if (roomBelow >= size.height) {
        const double centred = screen.frame.midX() - size.width * 0.5;
        return {.left = visibleLeft(centred, size.width, visible),
                .top = below,
                .room = roomBelow,
                .belowPrompter = true};
    }
    const double width = visible.height < size.height ? size.width + size.scrollBar : size.width;
    // Where both are alike, at the end of the lines; a screen need not have a middle.
    const bool leftIsWider =
        prompter.minX() - visible.minX() > visible.maxX() - prompter.maxX() + 1.0;
    const double beside = leftIsWider ? prompter.minX() - width : prompter.maxX();
    return {
        .left = visibleLeft(beside, width, visible), .top = visible.maxY(), .room = visible.height};
}

} // namespace tessaline
