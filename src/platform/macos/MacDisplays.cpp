#include "platform/macos/MacAdapters.h"

#include <QScreen>

#include <CoreGraphics/CoreGraphics.h>

#include <algorithm>
#include <vector>

namespace tessaline {

namespace {

/// Of displays that mirror each other, only the one that is drawn to.
std::vector<CGDirectDisplayID> activeDisplays() {
    std::uint32_t count = 0;
    CGGetActiveDisplayList(0, nullptr, &count);
    std::vector<CGDirectDisplayID> displays(count);
    CGGetActiveDisplayList(count, displays.data(), &count);
    displays.resize(std::min<std::size_t>(displays.size(), count));
    return displays;
}

} // namespace

ScreenIdentity identifyScreen(const QScreen& screen) {
    // Qt does not tell a screen's display, and names repeat; but Qt and Core Graphics both count
    // points from the top left corner of the primary display.
    const CGPoint centre = QRectF(screen.geometry()).center().toCGPoint();
    for (const CGDirectDisplayID display : activeDisplays()) {
        if (CGRectContainsPoint(CGDisplayBounds(display), centre))
            return {.id = display, .builtIn = CGDisplayIsBuiltin(display) != 0};
    }
    return {};
}

} // namespace tessaline
