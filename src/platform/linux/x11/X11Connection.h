#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>

namespace tessaline {

/// A connection of our own to the X server, with XInput 2 and XKB switched on. What is grabbed
/// through it is free again as soon as it closes, also when the program is killed. One thread at a
/// time.
class X11Connection {
public:
    /// Null where there is no X server or where it offers too little.
    static std::unique_ptr<X11Connection> open();

    ~X11Connection();
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;

    xcb_connection_t* xcb() const { return connection; }
    xcb_window_t root() const;

    /// What to wait on for the server to say something.
    int descriptor() const;
    bool isBroken() const;

    /// The XInput event type of an event; 0 for other events.
    std::uint16_t inputEventType(const xcb_generic_event_t& event) const;

    /// The XKB event type of an event; none (a value that no type has) for other events.
    static constexpr std::uint8_t noXkbEvent = 0xff;
    std::uint8_t xkbEventType(const xcb_generic_event_t& event) const;

private:
    explicit X11Connection(xcb_connection_t* openConnection);
    bool startInput();
    bool startXkb();

    xcb_connection_t* connection;
    std::uint8_t inputOpcode = 0;
    std::uint8_t xkbFirstEvent = 0;
};

} // namespace tessaline
