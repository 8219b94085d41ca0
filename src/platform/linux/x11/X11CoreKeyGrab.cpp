#include "platform/linux/x11/X11CoreKeyGrab.h"

#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/XcbReply.h"

namespace tessaline {

bool X11CoreKeyGrab::take(const X11Connection& connection) const {
    std::vector<xcb_void_cookie_t> requests;
    requests.reserve(modifiers.size());
    for (const std::uint32_t combination : modifiers) {
        requests.push_back(xcb_grab_key_checked(
            connection.xcb(), 0, connection.root(), static_cast<std::uint16_t>(combination),
            static_cast<xcb_keycode_t>(key), XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
    bool isFree = true;
    for (const auto request : requests) {
        const XcbReply<xcb_generic_error_t> error(xcb_request_check(connection.xcb(), request));
        if (error) isFree = false;
    }
    return isFree;
}

void X11CoreKeyGrab::release(const X11Connection& connection) const {
    for (const std::uint32_t combination : modifiers)
        xcb_ungrab_key(connection.xcb(), static_cast<xcb_keycode_t>(key), connection.root(),
                       static_cast<std::uint16_t>(combination));
}

} // namespace tessaline
