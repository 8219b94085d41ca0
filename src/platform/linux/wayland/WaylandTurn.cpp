#include "platform/linux/wayland/WaylandTurn.h"

#include "platform/linux/wayland/QtWaylandObjects.h"

#include <wayland-client.h>

#include <utility>

namespace tessaline {

WaylandTurn::WaylandTurn(wl_display* display, std::function<void()> done)
    : callback(wl_display_sync(display)), onDone(std::move(done)) {
    static constexpr wl_callback_listener listener{
        .done = [](void* self, wl_callback* /*callback*/, std::uint32_t /*serial*/) {
            static_cast<WaylandTurn*>(self)->finish();
        }};
    wl_callback_add_listener(callback, &listener, this);
}

WaylandTurn::~WaylandTurn() {
    wl_callback_destroy(callback);
}

void WaylandTurn::finish() {
    const auto done = lifetime.guard(std::exchange(onDone, nullptr));
    handOutWaylandInput();
    done();
}

} // namespace tessaline
