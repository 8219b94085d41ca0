#pragma once

#include <array>
#include <cstdint>
#include <vector>

struct xcb_connection_t;

namespace tessaline {

/// Reads, watches and mends the order of the top-level windows of a screen.
class X11Stacking {
public:
    using XWindow = std::uint32_t;

    /// Borrows the connection, which must work.
    X11Stacking(xcb_connection_t* connection, XWindow root);

    /// Has the server report changes of the order to this connection, besides what it reports
    /// already.
    void listen() const;

    /// Whether an event of xcb's says that windows may be in another order now, or that the
    /// window manager knows other windows now: it may tell after it has raised one.
    bool isChange(const void* event) const;

    /// Puts a top-level window directly above the topmost window of the window manager's, if that
    /// one is above it. Menus and tooltips, which the window manager does not know, stay on top.
    void raiseAboveManagedWindows(XWindow window) const;

private:
    std::vector<XWindow> topLevelWindows() const;
    std::vector<XWindow> managedWindows() const;
    std::vector<XWindow> framesOf(std::vector<XWindow> windows) const;

    xcb_connection_t* connection;
    XWindow root;
    /// The atoms under which the window manager tells the windows that it knows: some add a window
    /// to their list late, but say at once that it is the active one.
    std::array<std::uint32_t, 2> managedWindowLists;
};

} // namespace tessaline
