#pragma once

#include <cstdint>
#include <memory>

struct wl_display;
struct wl_registry;
struct wl_seat;
struct zwlr_virtual_pointer_manager_v1;
struct zwp_virtual_keyboard_manager_v1;

namespace tessaline {

/// A connection to the compositor that WAYLAND_DISPLAY names, and what it takes to have a mouse and
/// a keyboard there.
class WaylandSeat {
public:
    /// Null when nobody answers, or who answers takes no mouse and no keyboard of ours.
    static std::unique_ptr<WaylandSeat> connect();

    ~WaylandSeat();
    WaylandSeat(const WaylandSeat&) = delete;
    WaylandSeat& operator=(const WaylandSeat&) = delete;

    /// Until the compositor has all that was said. False once it is gone.
    bool sync();

    /// Milliseconds, as events are stamped with.
    static std::uint32_t now();

    wl_seat* seat = nullptr;
    zwlr_virtual_pointer_manager_v1* pointers = nullptr;
    zwp_virtual_keyboard_manager_v1* keyboards = nullptr;

private:
    WaylandSeat() = default;
    void bind(wl_registry* registry, std::uint32_t name, const char* interface);

    wl_display* display = nullptr;
};

} // namespace tessaline
