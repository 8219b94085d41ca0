#include "WatchedScreen.h"

#include <QtGlobal>

#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace tessaline {

namespace {

constexpr int lookedAtWidth = 360;
constexpr int lookedAtTop = 50;
constexpr int lookedAtHeight = 120;

template <typename T>
std::unique_ptr<T, decltype(&std::free)> owned(T* reply) {
    return {reply, &std::free};
}

bool isAmber(const std::uint8_t* pixel) {
    return pixel[2] > 150 && pixel[1] > 120 && pixel[0] < 170;
}

} // namespace

WatchedScreen::WatchedScreen() : connection(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(connection)) qFatal("There is no X display to measure on");
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    root = screen->root;
    width = screen->width_in_pixels;
    const auto* extension = xcb_get_extension_data(connection, &xcb_damage_id);
    if (!extension->present) qFatal("The X server does not report damage");
    damageEvent = std::uint8_t(extension->first_event + XCB_DAMAGE_NOTIFY);
    owned(xcb_damage_query_version_reply(connection, xcb_damage_query_version(connection, 1, 1),
                                         nullptr));
    damage = xcb_generate_id(connection);
    xcb_damage_create(connection, damage, root, XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    xcb_flush(connection);
}

WatchedScreen::~WatchedScreen() {
    xcb_disconnect(connection);
}

bool WatchedScreen::showsText() const {
    const auto image =
        owned(xcb_get_image_reply(connection,
                                  xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, root,
                                                std::int16_t((width - lookedAtWidth) / 2),
                                                lookedAtTop, lookedAtWidth, lookedAtHeight, ~0U),
                                  nullptr));
    if (!image) return false;
    const std::uint8_t* pixels = xcb_get_image_data(image.get());
    const int count = xcb_get_image_data_length(image.get()) / 4;
    for (int i = 0; i < count; ++i) {
        if (isAmber(pixels + 4 * i)) return true;
    }
    return false;
}

int WatchedScreen::takeDamage() {
    // The answer to a question comes behind the events that happened before it.
    owned(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    int count = 0;
    while (const auto event = owned(xcb_poll_for_event(connection)))
        count += (event->response_type & 0x7f) == damageEvent;
    return count;
}

} // namespace tessaline
