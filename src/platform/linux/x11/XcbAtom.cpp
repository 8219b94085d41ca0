#include "platform/linux/x11/XcbAtom.h"

#include "platform/linux/x11/XcbReply.h"

namespace tessaline {

std::uint32_t xcbAtom(xcb_connection_t* connection, std::string_view name) {
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const XcbReply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    if (!reply) return XCB_ATOM_NONE;
    return reply->atom;
}

} // namespace tessaline
