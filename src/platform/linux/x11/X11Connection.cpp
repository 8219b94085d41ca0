#include "platform/linux/x11/X11Connection.h"

#include "platform/linux/x11/XcbReply.h"
#include "platform/linux/x11/XcbXkb.h"

#include <xcb/xinput.h>

namespace tessaline {

namespace {

// 2.1 delivers raw events during grabs.
constexpr std::uint16_t inputMajor = 2;
constexpr std::uint16_t inputMinor = 1;

const xcb_query_extension_reply_t* extensionData(xcb_connection_t* connection,
                                                 xcb_extension_t& extension) {
    const auto* data = xcb_get_extension_data(connection, &extension);
    return data && data->present ? data : nullptr;
}

} // namespace

std::unique_ptr<X11Connection> X11Connection::open() {
    std::unique_ptr<X11Connection> opened(new X11Connection(xcb_connect(nullptr, nullptr)));
    if (opened->isBroken() || !opened->startInput() || !opened->startXkb()) return nullptr;
    return opened;
}

X11Connection::X11Connection(xcb_connection_t* openConnection) : connection(openConnection) {}

X11Connection::~X11Connection() {
    xcb_disconnect(connection);
}

xcb_window_t X11Connection::root() const {
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

int X11Connection::descriptor() const {
    return xcb_get_file_descriptor(connection);
}

bool X11Connection::isBroken() const {
    return xcb_connection_has_error(connection) != 0;
}

std::uint16_t X11Connection::inputEventType(const xcb_generic_event_t& event) const {
    if ((event.response_type & 0x7f) != XCB_GE_GENERIC) return 0;
    const auto& generic = reinterpret_cast<const xcb_ge_generic_event_t&>(event);
    return generic.extension == inputOpcode ? generic.event_type : 0;
}

std::uint8_t X11Connection::xkbEventType(const xcb_generic_event_t& event) const {
    // All events of XKB share one number; the type comes where others have a detail.
    return (event.response_type & 0x7f) == xkbFirstEvent ? event.pad0 : noXkbEvent;
}

bool X11Connection::startInput() {
    const auto* extension = extensionData(connection, xcb_input_id);
    if (!extension) return false;
    inputOpcode = extension->major_opcode;
    const XcbReply<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        connection, xcb_input_xi_query_version(connection, inputMajor, inputMinor), nullptr));
    return version && version->major_version >= inputMajor;
}

bool X11Connection::startXkb() {
    const auto* extension = extensionData(connection, xcb_xkb_id);
    if (!extension) return false;
    xkbFirstEvent = extension->first_event;
    const XcbReply<xcb_xkb_use_extension_reply_t> use(
        xcb_xkb_use_extension_reply(connection, xcb_xkb_use_extension(connection, 1, 0), nullptr));
    return use && use->supported;
}

} // namespace tessaline
