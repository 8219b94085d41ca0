#include "platform/linux/X11Stacking.h"

#include "platform/linux/XcbReply.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tessaline {
namespace {

constexpr std::uint32_t maxManagedWindows = 4096;
constexpr std::uint8_t sentEventBit = 0x80;

xcb_atom_t atomNamed(xcb_connection_t* connection, std::string_view name) {
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const XcbReply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    if (!reply) return XCB_ATOM_NONE;
    return reply->atom;
}

} // namespace

X11Stacking::X11Stacking(xcb_connection_t* serverConnection, XWindow rootWindow)
    : connection(serverConnection)
    , root(rootWindow)
    , managedWindowList(atomNamed(serverConnection, "_NET_CLIENT_LIST_STACKING")) {}

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
    switch (static_cast<const xcb_generic_event_t*>(event)->response_type & ~sentEventBit) {
    case XCB_CONFIGURE_NOTIFY:
        return static_cast<const xcb_configure_notify_event_t*>(event)->event == root;
    case XCB_MAP_NOTIFY:
        return static_cast<const xcb_map_notify_event_t*>(event)->event == root;
    case XCB_PROPERTY_NOTIFY: {
        const auto* property = static_cast<const xcb_property_notify_event_t*>(event);
        return property->window == root && property->atom == managedWindowList;
    }
    default:
        return false;
    }
}

void X11Stacking::raiseAboveManagedWindows(XWindow window) const {
    const auto bottomToTop = topLevelWindows();
    const auto own = std::ranges::find(bottomToTop, window);
    if (own == bottomToTop.end() || own + 1 == bottomToTop.end()) return;

    const auto frames = framesOf(managedWindows());
    const auto topmost = std::find_first_of(bottomToTop.rbegin(), std::make_reverse_iterator(own),
                                            frames.begin(), frames.end());
    if (topmost.base() == own) return;

    const std::array<std::uint32_t, 2> values{*topmost, XCB_STACK_MODE_ABOVE};
    const auto cookie = xcb_configure_window_checked(
        connection, window, XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE,
        values.data());
    // The sibling may have gone meanwhile; the next restacking tries again.
    xcb_discard_reply(connection, cookie.sequence);
    xcb_flush(connection);
}

std::vector<X11Stacking::XWindow> X11Stacking::topLevelWindows() const {
    const XcbReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, root), nullptr));
    if (!tree) return {};
    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    return {children, children + xcb_query_tree_children_length(tree.get())};
}

std::vector<X11Stacking::XWindow> X11Stacking::managedWindows() const {
    const auto cookie = xcb_get_property(connection, 0, root, managedWindowList, XCB_ATOM_WINDOW, 0,
                                         maxManagedWindows);
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection, cookie, nullptr));
    if (!reply || reply->format != 32) return {};
    const auto* windows = static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
    return {windows, windows + reply->value_len};
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
