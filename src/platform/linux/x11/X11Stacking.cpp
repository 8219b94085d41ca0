#include "platform/linux/x11/X11Stacking.h"

#include "platform/linux/x11/XcbAtom.h"
#include "platform/linux/x11/XcbReply.h"
#include "platform/linux/x11/XcbWindows.h"

#include <algorithm>
#include <array>

namespace tessaline {

X11Stacking::X11Stacking(xcb_connection_t* serverConnection, XWindow rootWindow)
    : connection(serverConnection)
    , root(rootWindow)
    , managedWindowLists{xcbAtom(serverConnection, "_NET_CLIENT_LIST"),
                         xcbAtom(serverConnection, "_NET_ACTIVE_WINDOW")} {}

void X11Stacking::listen() const {
    const XcbReply<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
        connection, xcb_get_window_attributes(connection, root), nullptr));
    if (!attributes) return;
    const std::uint32_t mask = attributes->your_event_mask | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY |
                               XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection, root, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(connection);
}

bool X11Stacking::isChange(const void* event) const {
    switch (eventType(event)) {
    case XCB_CONFIGURE_NOTIFY:
        return static_cast<const xcb_configure_notify_event_t*>(event)->event == root;
    case XCB_MAP_NOTIFY:
        return static_cast<const xcb_map_notify_event_t*>(event)->event == root;
    case XCB_PROPERTY_NOTIFY: {
        const auto* property = static_cast<const xcb_property_notify_event_t*>(event);
        return property->window == root &&
               std::ranges::count(managedWindowLists, property->atom) > 0;
    }
    default:
        return false;
    }
}

void X11Stacking::raiseAboveManagedWindows(XWindow window) const {
    const auto bottomToTop = topLevelWindows();
    const auto own = std::ranges::find(bottomToTop, window);
    if (own == bottomToTop.end()) return;
    const auto next = own + 1;
    if (next == bottomToTop.end()) return;

    const auto frames = framesOf(managedWindows());
    const auto topmost = std::find_first_of(bottomToTop.rbegin(), std::make_reverse_iterator(next),
                                            frames.begin(), frames.end());
    if (topmost.base() == next) return;

    const std::array<std::uint32_t, 2> values{*topmost, XCB_STACK_MODE_ABOVE};
    const auto cookie = xcb_configure_window_checked(
        connection, window, XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE,
        values.data());
    // The sibling may have gone meanwhile; the next restacking tries again.
    xcb_discard_reply(connection, cookie.sequence);
    xcb_flush(connection);
}

std::vector<X11Stacking::XWindow> X11Stacking::topLevelWindows() const {
    return childrenOf(connection, {{root}}).front();
}

std::vector<X11Stacking::XWindow> X11Stacking::managedWindows() const {
    std::vector<XWindow> windows;
    for (const auto list : managedWindowLists) {
        const auto listed = windowsListedIn(connection, root, list);
        windows.insert(windows.end(), listed.begin(), listed.end());
    }
    return windows;
}

/// Window managers put clients into frames of their own, some into frames within frames. All
/// windows take one step up at a time, so that a step costs one round trip.
std::vector<X11Stacking::XWindow> X11Stacking::framesOf(std::vector<XWindow> windows) const {
    std::vector<XWindow> frames;
    while (!windows.empty()) {
        std::vector<xcb_query_tree_cookie_t> cookies;
        cookies.reserve(windows.size());
        for (const XWindow window : windows)
            cookies.push_back(xcb_query_tree(connection, window));

        std::vector<XWindow> parents;
        for (std::size_t i = 0; i < windows.size(); ++i) {
            xcb_generic_error_t* gone = nullptr;
            const XcbReply<xcb_query_tree_reply_t> tree(
                xcb_query_tree_reply(connection, cookies[i], &gone));
            const XcbReply<xcb_generic_error_t> error(gone);
            if (!tree) continue;
            if (tree->parent == root) {
                frames.push_back(windows[i]);
            } else if (tree->parent != XCB_WINDOW_NONE) {
                parents.push_back(tree->parent);
            }
        }
        windows = std::move(parents);
    }
    return frames;
}

} // namespace tessaline
