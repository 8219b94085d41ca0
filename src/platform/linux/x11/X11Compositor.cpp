#include "platform/linux/x11/X11Compositor.h"

#include "platform/linux/x11/XcbAtom.h"
#include "platform/linux/x11/XcbReply.h"

#include <xcb/xfixes.h>

namespace tessaline {

X11Compositor::X11Compositor(xcb_connection_t* serverConnection, std::uint32_t root)
    : connection(serverConnection), selection(xcbAtom(serverConnection, "_NET_WM_CM_S0")) {
    listen(root);
}

bool X11Compositor::isRunning() const {
    const auto cookie = xcb_get_selection_owner(connection, selection);
    const XcbReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, cookie, nullptr));
    return reply && reply->owner != XCB_NONE;
}

bool X11Compositor::isChange(const void* event) const {
    const auto* notice = static_cast<const xcb_xfixes_selection_notify_event_t*>(event);
    return changeType != 0 && eventType(event) == changeType && notice->selection == selection;
}

void X11Compositor::listen(std::uint32_t root) {
    const auto* extension = xcb_get_extension_data(connection, &xcb_xfixes_id);
    if (!extension || !extension->present) return;
    // The server serves nobody who has not asked for the version, and nothing that is newer than
    // the one that was asked for last: the connection's other users need the newest.
    const auto cookie =
        xcb_xfixes_query_version(connection, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION);
    const XcbReply<xcb_xfixes_query_version_reply_t> version(
        xcb_xfixes_query_version_reply(connection, cookie, nullptr));
    if (!version) return;
    changeType = extension->first_event + XCB_XFIXES_SELECTION_NOTIFY;
    xcb_xfixes_select_selection_input(connection, root, selection,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    xcb_flush(connection);
}

} // namespace tessaline
