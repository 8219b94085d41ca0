#include "platform/linux/x11/X11KeyGrab.h"

#include "platform/PlatformLog.h"
#include "platform/linux/x11/X11CoreKeyGrab.h"
#include "platform/linux/x11/X11Modifiers.h"
#include "platform/linux/x11/X11PassiveGrab.h"
#include "platform/linux/x11/XcbReply.h"
#include "platform/linux/x11/XcbXkb.h"

#include <xcb/xinput.h>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tessaline {

namespace {

using namespace std::chrono_literals;

constexpr auto grabRetryInterval = 2s;

std::vector<std::uint32_t> combinationsOf(ModifierFlags modifiers) {
    return modifierCombinations(x11ModifiersFrom(modifiers), X11Modifier::ignored);
}

X11PassiveGrab grabOf(std::uint32_t key, ModifierFlags modifiers) {
    return {
        .kind = X11PassiveGrab::Kind::key, .detail = key, .modifiers = combinationsOf(modifiers)};
}

X11CoreKeyGrab coreGrabOf(std::uint32_t key, ModifierFlags modifiers) {
    return {.key = key, .modifiers = combinationsOf(modifiers)};
}

} // namespace

X11KeyGrab::X11KeyGrab(std::unique_ptr<X11Connection> ownConnection,
                       GlobalKeyMonitor::Chord wantedChord, GlobalKeyMonitor::Handler keyHandler)
    : connection(std::move(ownConnection))
    , chord(std::move(wantedChord))
    , handler(std::move(keyHandler))
    , letters(KeyboardLetters::read(connection->xcb()))
    , notifier(connection->descriptor(), QSocketNotifier::Read) {
    QObject::connect(&notifier, &QSocketNotifier::activated, &notifier, [this] { readEvents(); });
    retryTimer.setInterval(grabRetryInterval);
    QObject::connect(&retryTimer, &QTimer::timeout, &retryTimer, [this] {
        if (grabKeys()) retryTimer.stop();
        readEvents();
    });
}

bool X11KeyGrab::take() {
    listen();
    const XcbReply<xcb_xkb_get_state_reply_t> state(xcb_xkb_get_state_reply(
        connection->xcb(), xcb_xkb_get_state(connection->xcb(), XCB_XKB_ID_USE_CORE_KBD), nullptr));
    if (state) layout = state->group;
    const bool taken = grabKeys();
    // The replies above may have brought events along, of which the descriptor says nothing more.
    QMetaObject::invokeMethod(
        &notifier, [this] { readEvents(); }, Qt::QueuedConnection);
    return taken;
}

void X11KeyGrab::listen() {
    constexpr std::uint16_t events = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY |
                                     XCB_XKB_EVENT_TYPE_MAP_NOTIFY |
                                     XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = XCB_XKB_NKN_DETAIL_KEYCODES;
    details.newKeyboardDetails = XCB_XKB_NKN_DETAIL_KEYCODES;
    details.affectState = XCB_XKB_STATE_PART_GROUP_STATE;
    details.stateDetails = XCB_XKB_STATE_PART_GROUP_STATE;
    constexpr std::uint16_t parts = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS;
    xcb_xkb_select_events_aux(connection->xcb(), XCB_XKB_ID_USE_CORE_KBD, events, 0, 0, parts,
                              parts, &details);
}

void X11KeyGrab::readEvents() {
    while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection->xcb())})
        handle(*event);
    // A new keyboard comes as a series of events, which one look at the result answers.
    if (connection->isBroken()) return notifier.setEnabled(false);
    if (keyboardChanged || layoutChanged) followKeyboard();
}

void X11KeyGrab::handle(const xcb_generic_event_t& event) {
    if (connection->inputEventType(event) == XCB_INPUT_KEY_PRESS)
        return press(reinterpret_cast<const xcb_input_button_press_event_t&>(event));
    switch (connection->xkbEventType(event)) {
    case XCB_XKB_NEW_KEYBOARD_NOTIFY:
    case XCB_XKB_MAP_NOTIFY:
        keyboardChanged = true;
        break;
    case XCB_XKB_STATE_NOTIFY: {
        const auto group = reinterpret_cast<const xcb_xkb_state_notify_event_t&>(event).group;
        layoutChanged = layoutChanged || group != layout;
        layout = group;
        break;
    }
    default:
        break;
    }
}

void X11KeyGrab::press(const xcb_input_button_press_event_t& event) {
    handler({.characters = letters.letter(event.detail, event.group.effective),
             .modifiers = modifierFlagsFromX11(event.mods.effective),
             .isRepeat = (event.flags & XCB_INPUT_KEY_EVENT_FLAGS_KEY_REPEAT) != 0});
}

void X11KeyGrab::followKeyboard() {
    if (std::exchange(keyboardChanged, false)) letters = KeyboardLetters::read(connection->xcb());
    layoutChanged = false;
    if (grabKeys()) {
        retryTimer.stop();
    } else if (!retryTimer.isActive()) {
        qCWarning(inputLog, "On this keyboard layout another program holds the shortcut for other "
                            "applications, or no key types it.");
        retryTimer.start();
    }
    QMetaObject::invokeMethod(
        &notifier, [this] { readEvents(); }, Qt::QueuedConnection);
}

bool X11KeyGrab::grabKeys() {
    const auto keys = letters.keysFor(chord.characters, layout);
    if (keys == grabbedKeys) return !keys.empty();
    releaseKeys();
    grabbedKeys = keys;
    const bool hasAll = std::ranges::all_of(keys, [this](std::uint32_t key) { return grab(key); });
    if (!hasAll) releaseKeys();
    xcb_flush(connection->xcb());
    return !grabbedKeys.empty();
}

bool X11KeyGrab::grab(std::uint32_t key) const {
    return coreGrabOf(key, chord.modifiers).take(*connection) &&
           grabOf(key, chord.modifiers).take(*connection).empty();
}

void X11KeyGrab::releaseKeys() {
    for (const std::uint32_t key : std::exchange(grabbedKeys, {})) {
        grabOf(key, chord.modifiers).release(*connection);
        coreGrabOf(key, chord.modifiers).release(*connection);
    }
}

} // namespace tessaline
