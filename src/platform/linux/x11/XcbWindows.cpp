#include "platform/linux/x11/XcbWindows.h"

#include "platform/linux/x11/XcbReply.h"

namespace tessaline {

namespace {

constexpr std::uint32_t maxListedWindows = 4096;

} // namespace

std::vector<std::uint32_t> numbersIn(xcb_connection_t* connection,
                                     xcb_get_property_cookie_t requested) {
    xcb_generic_error_t* gone = nullptr;
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection, requested, &gone));
    const XcbReply<xcb_generic_error_t> error(gone);
    if (!reply || reply->format != 32) return {};
    const auto* numbers = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {numbers, numbers + reply->value_len};
}

std::vector<xcb_window_t> windowsListedIn(xcb_connection_t* connection, xcb_window_t window,
                                          xcb_atom_t property) {
    return numbersIn(connection, xcb_get_property(connection, 0, window, property, XCB_ATOM_WINDOW,
                                                  0, maxListedWindows));
}

std::vector<std::vector<xcb_window_t>> childrenOf(xcb_connection_t* connection,
                                                  std::span<const xcb_window_t> parents) {
    std::vector<xcb_query_tree_cookie_t> cookies;
    cookies.reserve(parents.size());
    for (const xcb_window_t parent : parents)
        cookies.push_back(xcb_query_tree(connection, parent));

    std::vector<std::vector<xcb_window_t>> found;
    found.reserve(parents.size());
    for (const auto cookie : cookies) {
        xcb_generic_error_t* gone = nullptr;
        const XcbReply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection, cookie, &gone));
        const XcbReply<xcb_generic_error_t> error(gone);
        const xcb_window_t* children = tree ? xcb_query_tree_children(tree.get()) : nullptr;
        const int count = tree ? xcb_query_tree_children_length(tree.get()) : 0;
        found.emplace_back(children, children + count);
    }
    return found;
}

} // namespace tessaline
