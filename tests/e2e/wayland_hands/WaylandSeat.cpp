#include "WaylandSeat.h"

#include "virtual-keyboard-client.h"
#include "virtual-pointer-client.h"

#include <chrono>
#include <string_view>

namespace tessaline {

std::unique_ptr<WaylandSeat> WaylandSeat::connect() {
    std::unique_ptr<WaylandSeat> made(new WaylandSeat);
    made->display = wl_display_connect(nullptr);
    if (!made->display) return nullptr;
    wl_registry* registry = wl_display_get_registry(made->display);
    static const wl_registry_listener listener = {
        .global =
            [](void* data, wl_registry* from, std::uint32_t name, const char* interface,
               std::uint32_t) { static_cast<WaylandSeat*>(data)->bind(from, name, interface); },
        .global_remove = [](void*, wl_registry*, std::uint32_t) {}};
    wl_registry_add_listener(registry, &listener, made.get());
    made->sync();
    wl_registry_destroy(registry);
    return made->seat && made->pointers && made->keyboards ? std::move(made) : nullptr;
}

WaylandSeat::~WaylandSeat() {
    if (display) wl_display_disconnect(display);
}

bool WaylandSeat::sync() {
    return wl_display_roundtrip(display) >= 0;
}

std::uint32_t WaylandSeat::now() {
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(time).count());
}

void WaylandSeat::bind(wl_registry* registry, std::uint32_t name, const char* interface) {
    const std::string_view offered = interface;
    const auto bound = [&](const wl_interface& wanted) {
        return offered == wanted.name ? wl_registry_bind(registry, name, &wanted, 1) : nullptr;
    };
    if (void* found = bound(wl_seat_interface)) seat = static_cast<wl_seat*>(found);
    if (void* found = bound(zwlr_virtual_pointer_manager_v1_interface))
        pointers = static_cast<zwlr_virtual_pointer_manager_v1*>(found);
    if (void* found = bound(zwp_virtual_keyboard_manager_v1_interface))
        keyboards = static_cast<zwp_virtual_keyboard_manager_v1*>(found);
}

} // namespace tessaline
