#include "platform/linux/x11/X11WindowTraits.h"

#include "platform/PlatformLog.h"
#include "platform/linux/x11/XcbAtom.h"
#include "platform/linux/x11/XcbReply.h"
#include "platform/linux/x11/XcbWindows.h"
#include "platform/qt/WidgetFrame.h"

#include <QCoreApplication>
#include <QWidget>

#include <utility>

namespace tessaline {

X11WindowTraits::X11WindowTraits(xcb_connection_t* serverConnection, Server kindOfServer)
    : connection(serverConnection)
    , server(kindOfServer)
    , root(xcb_setup_roots_iterator(xcb_get_setup(serverConnection)).data->root)
    , activeWindow(xcbAtom(serverConnection, "_NET_ACTIVE_WINDOW"))
    , stacking(serverConnection, root)
    , managerTurn(serverConnection, root)
    , compositor(serverConnection, root)
    , inputArea(serverConnection) {
    // Restacking comes as a series of events, which one look at the result answers.
    raiseTimer.setSingleShot(true);
    QObject::connect(&raiseTimer, &QTimer::timeout, &raiseTimer,
                     [this] { stacking.raiseAboveManagedWindows(floating); });
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11WindowTraits::~X11WindowTraits() = default;

Qt::WindowFlags X11WindowTraits::creationFlags() const {
    return Qt::BypassWindowManagerHint;
}

bool X11WindowTraits::showsTranslucency() const {
    return compositor.isRunning();
}

void X11WindowTraits::onTranslucencyChange(std::function<void()> changed) {
    translucencyChanged = std::move(changed);
}

bool X11WindowTraits::canExcludeFromCapture() const {
    return false;
}

bool X11WindowTraits::excludeFromCapture(NativeWindow /*window*/) {
    if (!std::exchange(reportedCapture, true)) {
        qCWarning(windowLog, "X11 cannot keep a window out of screen captures.");
    }
    return false;
}

void X11WindowTraits::prepare(QWidget& window) {
    if (server == Server::xWayland) window.setAttribute(Qt::WA_X11NetWmWindowTypeNotification);
}

void X11WindowTraits::place(QWidget& window, const Rect& frame, const Screen& /*screen*/) {
    setFrame(window, frame);
}

Rect X11WindowTraits::frame(const QWidget& window) const {
    return frameOf(window);
}

void X11WindowTraits::adopt(QWidget& window) {
    floating = static_cast<XWindow>(window.winId());
    stacking.listen();
    raiseTimer.start();
}

void X11WindowTraits::release(QWidget& window) {
    if (floating != static_cast<XWindow>(window.winId())) return;
    floating = XCB_NONE;
    raiseTimer.stop();
}

void X11WindowTraits::setInputArea(QWidget& window, const std::optional<QRect>& area) {
    inputArea.set(window, area);
}

void X11WindowTraits::takeKeyboard(NativeWindow window) {
    if (isKeyboardOutOfReach()) return refuseKeyboard();
    claiming = static_cast<XWindow>(window);
    claimKeyboard();
    managerTurn.await();
}

void X11WindowTraits::claimKeyboard() {
    const auto current = focusedWindow();
    if (!current || *current == claiming) return;
    if (focus(claiming)) previousFocus = *current;
}

void X11WindowTraits::giveKeyboardBack(NativeWindow window) {
    claiming = XCB_NONE;
    const auto previous = std::exchange(previousFocus, XWindow{XCB_NONE});
    if (previous == XCB_NONE) return;
    // Hiding the window has passed the keyboard on to the root window.
    const auto current = focusedWindow();
    if (current != static_cast<XWindow>(window) && current != root) return;
    // A window that went away or is on another desktop cannot have it: let the window manager
    // choose.
    if (!focus(previous)) focus(XCB_INPUT_FOCUS_POINTER_ROOT);
}

bool X11WindowTraits::nativeEventFilter(const QByteArray& type, void* message,
                                        qintptr* /*result*/) {
    if (type != "xcb_generic_event_t") return false;
    if (floating != XCB_NONE && stacking.isChange(message)) raiseTimer.start();
    if (claiming != XCB_NONE && managerTurn.isAnswer(message)) {
        // Another window of ours that has the keyboard by now has it because somebody asked for it.
        const auto current = focusedWindow();
        if (current && !isOurs(*current)) {
            server == Server::xWayland ? refuseKeyboard() : claimKeyboard();
        }
        claiming = XCB_NONE;
    }
    if (translucencyChanged && compositor.isChange(message)) translucencyChanged();
    return false;
}

std::optional<X11WindowTraits::XWindow> X11WindowTraits::focusedWindow() const {
    const XcbReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    if (!reply) return std::nullopt;
    return reply->focus;
}

void X11WindowTraits::onKeyboardRefused(const std::function<void()>& refused) {
    keyboardRefused = refused;
}

void X11WindowTraits::refuseKeyboard() const {
    if (keyboardRefused) keyboardRefused();
}

/// While a Wayland window has the keyboard, compositors name no X window as the active one.
bool X11WindowTraits::isKeyboardOutOfReach() const {
    if (server == Server::ordinary) return false;
    const auto active = windowsListedIn(connection, root, activeWindow);
    return active.empty() || active.front() == XCB_NONE;
}

/// Windows carry the number of the connection that made them.
bool X11WindowTraits::isOurs(XWindow window) const {
    const xcb_setup_t* setup = xcb_get_setup(connection);
    return (window & ~setup->resource_id_mask) == setup->resource_id_base;
}

/// False when the server refuses, as it does for windows that are gone or hidden.
bool X11WindowTraits::focus(XWindow window) const {
    const auto cookie =
        xcb_set_input_focus_checked(connection, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(connection, cookie));
    return !error;
}

} // namespace tessaline
