#include "platform/linux/x11/X11PassiveGrab.h"

#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/XcbReply.h"

#include <xcb/xinput.h>

namespace tessaline {

namespace {

constexpr xcb_input_device_id_t allMasterDevices = XCB_INPUT_DEVICE_ALL_MASTER;

std::uint32_t eventsOf(X11PassiveGrab::Kind kind) {
    // Releases too: what belongs to a press that others did not see is not for them either.
    return kind == X11PassiveGrab::Kind::button
               ? XCB_INPUT_XI_EVENT_MASK_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_BUTTON_RELEASE
               : XCB_INPUT_XI_EVENT_MASK_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_KEY_RELEASE;
}

} // namespace

std::vector<std::uint32_t> X11PassiveGrab::take(const X11Connection& connection) const {
    const std::uint32_t events = eventsOf(kind);
    const auto cookie = xcb_input_xi_passive_grab_device(
        connection.xcb(), XCB_CURRENT_TIME, connection.root(), XCB_CURSOR_NONE, detail,
        allMasterDevices, static_cast<std::uint16_t>(modifiers.size()), 1,
        static_cast<std::uint8_t>(kind), XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC,
        XCB_INPUT_GRAB_OWNER_NO_OWNER, &events, modifiers.data());
    const XcbReply<xcb_input_xi_passive_grab_device_reply_t> reply(
        xcb_input_xi_passive_grab_device_reply(connection.xcb(), cookie, nullptr));
    if (!reply) return modifiers;
    std::vector<std::uint32_t> refused;
    const auto* entries = xcb_input_xi_passive_grab_device_modifiers(reply.get());
    for (int i = 0; i < xcb_input_xi_passive_grab_device_modifiers_length(reply.get()); ++i)
        if (entries[i].status != XCB_GRAB_STATUS_SUCCESS) refused.push_back(entries[i].modifiers);
    return refused;
}

void X11PassiveGrab::release(const X11Connection& connection) const {
    xcb_input_xi_passive_ungrab_device(connection.xcb(), connection.root(), detail,
                                       allMasterDevices,
                                       static_cast<std::uint16_t>(modifiers.size()),
                                       static_cast<std::uint8_t>(kind), modifiers.data());
}

} // namespace tessaline
