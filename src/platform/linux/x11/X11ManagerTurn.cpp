#include "platform/linux/x11/X11ManagerTurn.h"

#include <xcb/xcb.h>

namespace tessaline {
namespace {

constexpr std::int16_t places = 1000;

} // namespace

X11ManagerTurn::X11ManagerTurn(xcb_connection_t* serverConnection, std::uint32_t root)
    : connection(serverConnection), asking(xcb_generate_id(serverConnection)) {
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, asking, root, place, place, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &mask);
}

X11ManagerTurn::~X11ManagerTurn() {
    xcb_destroy_window(connection, asking);
}

void X11ManagerTurn::await() {
    place = std::int16_t((place + 1) % places);
    const std::uint32_t x = std::uint32_t(place);
    xcb_configure_window(connection, asking, XCB_CONFIG_WINDOW_X, &x);
    xcb_flush(connection);
}

bool X11ManagerTurn::isAnswer(const void* event) const {
    const auto* moved = static_cast<const xcb_configure_notify_event_t*>(event);
    return moved->response_type == XCB_CONFIGURE_NOTIFY && moved->window == asking &&
           moved->x == place;
}

} // namespace tessaline
