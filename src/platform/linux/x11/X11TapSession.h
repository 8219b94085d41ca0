#pragma once

#include "platform/TapEvent.h"
#include "platform/linux/x11/PointerGuard.h"
#include "platform/linux/x11/PointerHold.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11PassiveGrab.h"
#include "platform/linux/x11/X11ScrollAxes.h"

#include <bitset>
#include <functional>
#include <memory>
#include <vector>

struct xcb_input_button_press_event_t;
struct xcb_input_raw_button_press_event_t;

namespace tessaline {

/// What the event tap asks of the X server and does with its answers. One thread at a time: its
/// constructor's may be another than the one of `run`.
///
/// Wheel, middle, right and fourth button are grabbed together with Control and every combination
/// of other modifiers, locks included. The grabs do not make the server wait for us, so their
/// events are swallowed whatever becomes of us. Scroll axes need more, see `PointerHold`: where a
/// device has one, the whole pointer is held at times, under the eyes of a `PointerGuard`.
class X11TapSession {
public:
    /// Receives what was swallowed, on the thread of `run`.
    using Deliver = std::function<void(const TapEvent&)>;

    X11TapSession(std::unique_ptr<X11Connection> connection, Deliver deliver);

    /// Takes the grabs that are free. False where that is none.
    bool takeGrabs();

    /// Works until `stopDescriptor` can be read or the server is gone.
    void run(int stopDescriptor);

private:
    using Time = PointerHold::Time;

    bool takeRefusedGrabs();
    void listen();
    void learnModifierKeys();
    void createWindowElsewhere();
    void learnScrollAxes();
    int waitTime(Time now) const;

    void handleEvents();
    void handle(const xcb_generic_event_t& event);
    void handleInput(const xcb_generic_event_t& event, std::uint16_t type);
    void handlePress(const xcb_input_button_press_event_t& event);
    void handleRelease(const xcb_input_button_press_event_t& event);
    void handleMotion(const xcb_input_button_press_event_t& event);
    void handleRaw(const xcb_input_raw_button_press_event_t& event);
    void controlChanged(bool isDown);

    void updateHold();
    void holdPointer();
    void letPointerGo();
    void reassureGuard();
    void answer(std::uint8_t mode) const;

    std::unique_ptr<X11Connection> connection;
    Deliver deliver;
    std::vector<X11PassiveGrab> refused; ///< what others hold, to be tried again
    Time nextRetry{};
    bool reportedRefusal = false;
    std::bitset<256> modifierKeys;
    X11ScrollAxes axes;
    PointerHold hold;
    std::unique_ptr<PointerGuard> guard; ///< as soon as the pointer may have to be held
    Time nextSign{};                     ///< of life, while it is
    bool guardIsWatching = false;
    bool controlIsDown = false;
    bool holding = false;
    std::uint16_t pointer = 0; ///< the device that is held
    xcb_window_t elsewhere = 0;
    double lastX = 0.0;
    double lastY = 0.0;
};

} // namespace tessaline
