#include "platform/linux/x11/X11TapSession.h"

#include "platform/PlatformLog.h"
#include "platform/linux/x11/X11Modifiers.h"
#include "platform/linux/x11/XcbReply.h"
#include "platform/linux/x11/XcbXkb.h"

#include <poll.h>
#include <xcb/xinput.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace tessaline {

namespace {

using namespace std::chrono_literals;

constexpr std::array<std::uint32_t, 5> ourButtons{2, 3, 4, 5, 8};
constexpr std::uint32_t wheelUp = 4;
constexpr std::uint32_t wheelDown = 5;
constexpr std::uint32_t otherModifiers = 0xff & ~X11Modifier::control;
constexpr auto retryInterval = 2s;
constexpr double fixedPointOne = 65536.0;

bool isOurs(std::uint32_t button) {
    return std::ranges::count(ourButtons, button) > 0;
}

bool isWheel(std::uint32_t button) {
    return button == wheelUp || button == wheelDown;
}

TapEvent tapEventFor(const xcb_input_button_press_event_t& event) {
    const ModifierFlags modifiers = modifierFlagsFromX11(event.mods.effective);
    switch (event.detail) {
    case wheelUp:
    case wheelDown:
        return {.type = TapEvent::Type::scrollWheel,
                .modifiers = modifiers,
                .scrollingDeltaY = event.detail == wheelUp ? 1.0 : -1.0};
    case 3:
        return {.type = TapEvent::Type::rightMouseDown, .modifiers = modifiers, .buttonNumber = 1};
    default:
        return {.type = TapEvent::Type::otherMouseDown,
                .modifiers = modifiers,
                .buttonNumber = event.detail == 2 ? 2 : 3};
    }
}

void selectInput(const X11Connection& connection, std::uint16_t device, std::uint32_t events) {
    const struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } request{{.deviceid = device, .mask_len = 1}, events};
    xcb_input_xi_select_events(connection.xcb(), connection.root(), 1, &request.head);
}

} // namespace

X11TapSession::X11TapSession(std::unique_ptr<X11Connection> ownConnection, Deliver deliverEvent)
    : connection(std::move(ownConnection)), deliver(std::move(deliverEvent)) {}

bool X11TapSession::takeGrabs() {
    for (const std::uint32_t button : ourButtons) {
        refused.push_back(
            {.kind = X11PassiveGrab::Kind::button,
             .detail = button,
             .modifiers = modifierCombinations(X11Modifier::control, otherModifiers)});
    }
    return takeRefusedGrabs();
}

/// False if others hold all of them.
bool X11TapSession::takeRefusedGrabs() {
    bool tookSome = false;
    for (X11PassiveGrab& grab : refused) {
        const std::size_t wanted = grab.modifiers.size();
        grab.modifiers = grab.take(*connection);
        tookSome = tookSome || grab.modifiers.size() < wanted;
    }
    std::erase_if(refused, [](const X11PassiveGrab& grab) { return grab.modifiers.empty(); });
    nextRetry = PointerHold::Clock::now() + retryInterval;
    if (tookSome && !refused.empty() && !std::exchange(reportedRefusal, true)) {
        qCWarning(inputLog,
                  "Another program holds Control with %zu of the pointer's buttons; they "
                  "stay with it until it ends.",
                  refused.size());
    }
    return tookSome;
}

void X11TapSession::listen() {
    xcb_xkb_select_events_details_t details{};
    details.affectState = XCB_XKB_STATE_PART_MODIFIER_STATE;
    details.stateDetails = XCB_XKB_STATE_PART_MODIFIER_STATE;
    xcb_xkb_select_events_aux(connection->xcb(), XCB_XKB_ID_USE_CORE_KBD,
                              XCB_XKB_EVENT_TYPE_STATE_NOTIFY, 0, 0, 0, 0, &details);
    learnModifierKeys();
    createWindowElsewhere();
    selectInput(*connection, XCB_INPUT_DEVICE_ALL, XCB_INPUT_XI_EVENT_MASK_HIERARCHY);
    learnScrollAxes();
}

void X11TapSession::learnScrollAxes() {
    axes.refresh(*connection);
    // Beforehand, as nobody's scrolling waits for a process to start.
    if (axes.areThere() && !guard) guard = PointerGuard::start(elsewhere);
}

/// Nobody sees it, and no window manager takes it.
void X11TapSession::createWindowElsewhere() {
    elsewhere = xcb_generate_id(connection->xcb());
    const std::uint32_t overrideRedirect = 1;
    xcb_create_window(connection->xcb(), 0, elsewhere, connection->root(), -2, -2, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
                      &overrideRedirect);
    xcb_map_window(connection->xcb(), elsewhere);
}

void X11TapSession::learnModifierKeys() {
    const XcbReply<xcb_get_modifier_mapping_reply_t> mapping(xcb_get_modifier_mapping_reply(
        connection->xcb(), xcb_get_modifier_mapping(connection->xcb()), nullptr));
    if (!mapping) return;
    modifierKeys.reset();
    const xcb_keycode_t* keys = xcb_get_modifier_mapping_keycodes(mapping.get());
    for (int i = 0; i < xcb_get_modifier_mapping_keycodes_length(mapping.get()); ++i)
        modifierKeys.set(keys[i]);
}

void X11TapSession::run(int stopDescriptor) {
    listen();
    for (;;) {
        handleEvents();
        const Time now = PointerHold::Clock::now();
        if (!refused.empty() && now >= nextRetry) takeRefusedGrabs();
        updateHold();
        reassureGuard();
        // What waited for an answer of the server may have brought events with it.
        handleEvents();
        xcb_flush(connection->xcb());
        if (connection->isBroken()) return;

        std::array<pollfd, 2> sources{
            {{connection->descriptor(), POLLIN, 0}, {stopDescriptor, POLLIN, 0}}};
        poll(sources.data(), sources.size(), waitTime(now));
        if (sources[1].revents != 0) return;
    }
}

/// Milliseconds; -1: until something happens.
int X11TapSession::waitTime(Time now) const {
    auto next = hold.nextLook(now);
    if (!refused.empty()) next = std::min(next.value_or(nextRetry), nextRetry);
    if (holding) next = std::min(next.value_or(nextSign), nextSign);
    if (!next) return -1;
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(*next - now);
    return std::max(0, static_cast<int>(wait.count()));
}

void X11TapSession::handleEvents() {
    while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection->xcb())}) {
        handle(*event);
        updateHold();
    }
}

void X11TapSession::handle(const xcb_generic_event_t& event) {
    if (const auto type = connection->inputEventType(event)) return handleInput(event, type);
    if (connection->xkbEventType(event) == XCB_XKB_STATE_NOTIFY) {
        const auto& state = reinterpret_cast<const xcb_xkb_state_notify_event_t&>(event);
        return controlChanged((state.mods & X11Modifier::control) != 0);
    }
    if ((event.response_type & 0x7f) == XCB_MAPPING_NOTIFY) learnModifierKeys();
}

void X11TapSession::handleInput(const xcb_generic_event_t& event, std::uint16_t type) {
    switch (type) {
    case XCB_INPUT_BUTTON_PRESS:
        return handlePress(reinterpret_cast<const xcb_input_button_press_event_t&>(event));
    case XCB_INPUT_BUTTON_RELEASE:
        return handleRelease(reinterpret_cast<const xcb_input_button_press_event_t&>(event));
    case XCB_INPUT_MOTION:
        return handleMotion(reinterpret_cast<const xcb_input_button_press_event_t&>(event));
    case XCB_INPUT_HIERARCHY:
        return learnScrollAxes();
    case XCB_INPUT_RAW_KEY_PRESS:
    case XCB_INPUT_RAW_BUTTON_PRESS:
    case XCB_INPUT_RAW_BUTTON_RELEASE:
    case XCB_INPUT_RAW_MOTION:
        return handleRaw(reinterpret_cast<const xcb_input_raw_button_press_event_t&>(event));
    default:
        break;
    }
}

void X11TapSession::handlePress(const xcb_input_button_press_event_t& event) {
    if (!isOurs(event.detail)) {
        hold.foreignButtonChanged(event.detail, true);
        // The server lets the pointer go with it.
        answer(XCB_INPUT_EVENT_MODE_REPLAY_DEVICE);
        holding = false;
        return;
    }
    if (holding) {
        hold.ownButtonChanged(event.detail, true);
        answer(XCB_INPUT_EVENT_MODE_SYNC_DEVICE);
    }
    if (isWheel(event.detail)) hold.scrolled(PointerHold::Clock::now());
    const bool isEmulated = (event.flags & XCB_INPUT_POINTER_EVENT_FLAGS_POINTER_EMULATED) != 0;
    // The motion of the axis, which is emulated as a button, has been delivered if we saw it.
    if (!isEmulated || !holding) deliver(tapEventFor(event));
}

void X11TapSession::handleRelease(const xcb_input_button_press_event_t& event) {
    if (isOurs(event.detail)) {
        hold.ownButtonChanged(event.detail, false);
        if (holding) answer(XCB_INPUT_EVENT_MODE_SYNC_DEVICE);
        return;
    }
    hold.foreignButtonChanged(event.detail, false);
    answer(XCB_INPUT_EVENT_MODE_REPLAY_DEVICE);
    holding = false;
}

void X11TapSession::handleMotion(const xcb_input_button_press_event_t& event) {
    const double x = event.root_x / fixedPointOne;
    const double y = event.root_y / fixedPointOne;
    const Time now = PointerHold::Clock::now();
    hold.moved(std::hypot(x - lastX, y - lastY), now);
    lastX = x;
    lastY = y;
    const auto delta = axes.scrolledBy(event);
    if (!delta || delta->amount == 0.0) return;
    hold.scrolled(now);
    deliver({.type = TapEvent::Type::scrollWheel,
             .modifiers = modifierFlagsFromX11(event.mods.effective) | Modifier::control,
             .hasPreciseDeltas = delta->isPrecise,
             .scrollingDeltaY = delta->amount});
}

void X11TapSession::handleRaw(const xcb_input_raw_button_press_event_t& event) {
    switch (event.event_type) {
    case XCB_INPUT_RAW_KEY_PRESS:
        if (event.detail < modifierKeys.size() && !modifierKeys[event.detail])
            hold.otherKeyPressed();
        break;
    case XCB_INPUT_RAW_BUTTON_PRESS:
    case XCB_INPUT_RAW_BUTTON_RELEASE:
        if (!isOurs(event.detail))
            hold.foreignButtonChanged(event.detail, event.event_type == XCB_INPUT_RAW_BUTTON_PRESS);
        break;
    default:
        // While the pointer is held, its motion itself comes to us.
        if (!holding) hold.moved(1.0, PointerHold::Clock::now());
        break;
    }
}

void X11TapSession::controlChanged(bool isDown) {
    if (isDown == std::exchange(controlIsDown, isDown)) return;
    hold.controlChanged(isDown);
    // What else happens is looked at only while Control is down.
    selectInput(
        *connection, XCB_INPUT_DEVICE_ALL_MASTER,
        isDown ? XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS |
                     XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE | XCB_INPUT_XI_EVENT_MASK_RAW_MOTION
               : 0);
}

void X11TapSession::updateHold() {
    // While we held the pointer, nobody else's grabs would work.
    const bool wanted =
        axes.areThere() && refused.empty() && hold.isWanted(PointerHold::Clock::now());
    if (wanted && !holding) holdPointer();
    if (!wanted && holding) letPointerGo();
}

/// The server stops at every button until we have answered; this thread does nothing that could
/// keep it waiting.
void X11TapSession::holdPointer() {
    const XcbReply<xcb_input_xi_get_client_pointer_reply_t> client(
        xcb_input_xi_get_client_pointer_reply(
            connection->xcb(), xcb_input_xi_get_client_pointer(connection->xcb(), XCB_NONE),
            nullptr));
    if (!client) return;
    if (!guard) guard = PointerGuard::start(elsewhere);
    guardIsWatching = guard && guard->watch();
    if (!guardIsWatching) {
        guard.reset();
        return hold.refused(PointerHold::Clock::now());
    }
    nextSign = PointerHold::Clock::now() + PointerGuard::signInterval;
    pointer = client->deviceid;
    const std::uint32_t events = XCB_INPUT_XI_EVENT_MASK_BUTTON_PRESS |
                                 XCB_INPUT_XI_EVENT_MASK_BUTTON_RELEASE |
                                 XCB_INPUT_XI_EVENT_MASK_MOTION;
    const auto cookie = xcb_input_xi_grab_device(
        connection->xcb(), connection->root(), XCB_CURRENT_TIME, XCB_CURSOR_NONE, pointer,
        XCB_INPUT_GRAB_MODE_22_SYNC, XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_OWNER_NO_OWNER, 1,
        &events);
    // A pointer held in this way does not move before the first answer: it goes along.
    answer(XCB_INPUT_EVENT_MODE_SYNC_DEVICE);
    const XcbReply<xcb_input_xi_grab_device_reply_t> reply(
        xcb_input_xi_grab_device_reply(connection->xcb(), cookie, nullptr));
    holding = reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
    if (!holding) return hold.refused(PointerHold::Clock::now());
    axes.refresh(*connection);
}

void X11TapSession::reassureGuard() {
    if (!guard) return;
    const Time now = PointerHold::Clock::now();
    if (holding && now >= nextSign) {
        nextSign = now + PointerGuard::signInterval;
        guardIsWatching = guard->watch();
        if (!guardIsWatching) {
            letPointerGo();
            return guard.reset();
        }
    }
    if (!holding && std::exchange(guardIsWatching, false)) guard->rest();
}

void X11TapSession::letPointerGo() {
    // A button that went down just now has stopped the server: it goes on to whom it is for.
    answer(XCB_INPUT_EVENT_MODE_REPLAY_DEVICE);
    // The application under the pointer has to look where the scroll axes are now. Some toolkits
    // do so only when the pointer comes from a window that theirs is not inside of.
    xcb_discard_reply(connection->xcb(),
                      xcb_input_xi_grab_device(
                          connection->xcb(), elsewhere, XCB_CURRENT_TIME, XCB_CURSOR_NONE, pointer,
                          XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC,
                          XCB_INPUT_GRAB_OWNER_NO_OWNER, 0, nullptr)
                          .sequence);
    xcb_input_xi_ungrab_device(connection->xcb(), XCB_CURRENT_TIME, pointer);
    xcb_flush(connection->xcb());
    holding = false;
}

void X11TapSession::answer(std::uint8_t mode) const {
    xcb_input_xi_allow_events(connection->xcb(), XCB_CURRENT_TIME, pointer, mode, 0, XCB_NONE);
    xcb_flush(connection->xcb());
}

} // namespace tessaline
