#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

struct xkb_keymap;
struct xkb_state;
struct zwp_virtual_keyboard_v1;

namespace tessaline {

class WaylandSeat;

/// A keyboard of the session, with the American layout. Keys have the names of XKB, such as "a",
/// "Escape" or "Control_L", and "ctrl", "shift", "alt" and "super" for short.
class VirtualKeyboard {
public:
    /// Borrows the seat.
    explicit VirtualKeyboard(WaylandSeat& seat);
    ~VirtualKeyboard();
    VirtualKeyboard(const VirtualKeyboard&) = delete;
    VirtualKeyboard& operator=(const VirtualKeyboard&) = delete;

    /// Each is false when there is no such key.
    bool press(const std::string& name);
    bool release(const std::string& name);
    /// Presses and releases keys together, such as "ctrl+c".
    bool strike(const std::string& chord);

    /// Types a text of printable characters.
    bool type(const std::string& text);

private:
    struct Freed {
        void operator()(xkb_keymap* map) const;
        void operator()(xkb_state* state) const;
    };
    struct Key {
        std::uint32_t code;
        bool isShifted;
    };

    std::optional<Key> find(std::uint32_t symbol) const;
    bool send(const std::string& name, bool isDown);
    void send(std::uint32_t code, bool isDown);
    bool strike(std::uint32_t symbol);
    void offerKeymap();

    WaylandSeat& seat;
    std::unique_ptr<xkb_keymap, Freed> keymap;
    std::unique_ptr<xkb_state, Freed> state;
    zwp_virtual_keyboard_v1* keyboard;
};

} // namespace tessaline
