#pragma once

#include "platform/GlobalKeyMonitor.h"
#include "platform/linux/x11/KeyboardLetters.h"
#include "platform/linux/x11/X11Connection.h"

#include <QSocketNotifier>
#include <QTimer>

#include <memory>
#include <vector>

struct xcb_input_button_press_event_t;

namespace tessaline {

/// Holds a chord for as long as it lives, on whatever keys it is typed: it follows the layouts and
/// lets lock keys be on or off. Nobody else gets the chord.
///
/// It has the chord whole, or leaves it whole to the program that has any part of it: a shortcut
/// that works with Num Lock on and not with it off is worse than none.
class X11KeyGrab final : public GlobalKeyMonitor::Registration {
public:
    /// The connection has to be an X11Connection of its own.
    X11KeyGrab(std::unique_ptr<X11Connection> connection, GlobalKeyMonitor::Chord chord,
               GlobalKeyMonitor::Handler handler);

    /// Takes the chord. False when another program has it, or when no key types it. Should that
    /// come true later, on another layout, it goes on trying.
    bool take();

private:
    void listen();
    void readEvents();
    void handle(const xcb_generic_event_t& event);
    void press(const xcb_input_button_press_event_t& event);
    void followKeyboard();
    bool grabKeys();
    bool grab(std::uint32_t key) const;
    void releaseKeys();

    std::unique_ptr<X11Connection> connection;
    GlobalKeyMonitor::Chord chord;
    GlobalKeyMonitor::Handler handler;
    KeyboardLetters letters;
    std::uint32_t layout = 0;
    bool keyboardChanged = false;
    bool layoutChanged = false;
    std::vector<std::uint32_t> grabbedKeys;
    QTimer retryTimer;
    QSocketNotifier notifier;
};

} // namespace tessaline
