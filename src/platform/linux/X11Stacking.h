#pragma once

#include <cstdint>
#include <vector>

struct xcb_connection_t;

namespace tessaline {

/// Reads and mends the order of the top-level windows of a screen. Asks the server each time.
class X11Stacking {
public:
    using XWindow = std::uint32_t;

    /// Borrows the connection.
    X11Stacking(xcb_connection_t* connection, XWindow root);

    /// Puts a top-level window directly above the topmost window of the window manager's, if that
    /// one is above it. Menus and tooltips, which the window manager does not know, stay on top.
    void raiseAboveManagedWindows(XWindow window) const;

private:
    std::vector<XWindow> topLevelWindows() const;
    std::vector<XWindow> managedWindows() const;
    std::vector<XWindow> framesOf(std::vector<XWindow> windows) const;

    xcb_connection_t* connection;
    XWindow root;
};

} // namespace tessaline
