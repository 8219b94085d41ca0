#include "platform/linux/x11/X11Tray.h"

#include "platform/linux/x11/XcbAtom.h"
#include "platform/linux/x11/XcbReply.h"

#include <xcb/xcb.h>

namespace tessaline {

bool hasX11Tray(xcb_connection_t* connection) {
    static const auto traySelection = xcbAtom(connection, "_NET_SYSTEM_TRAY_S0");
    const XcbReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, traySelection), nullptr));
    return reply && reply->owner != XCB_NONE;
}

} // namespace tessaline
