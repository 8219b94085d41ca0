#pragma once

#include "platform/WindowTraits.h"
#include "platform/linux/x11/X11Compositor.h"
#include "platform/linux/x11/X11InputArea.h"
#include "platform/linux/x11/X11ManagerTurn.h"
#include "platform/linux/x11/X11Stacking.h"

#include <QAbstractNativeEventFilter>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <optional>

struct xcb_connection_t;

namespace tessaline {

/// Traits by means of the X server alone: the window is created out of the window manager's reach
/// (override-redirect). A managed window, whatever its type and states, ends up below the
/// full-screen window that has the keyboard, may be moved away from panels, and is listed. What the
/// window manager would do is done here instead:
/// - it may raise a managed window above ours, so ours is put back on top after restacking;
/// - it never directs the keyboard to our window, so a click has to: see `FocusOnClick`;
/// - it directs the keyboard elsewhere when one of our other windows goes, and that only after we
///   have taken it: so it is taken once more when the window manager has had its turn.
/// X11 has no way to keep a window out of captures.
///
/// Under XWayland the keyboard is the compositor's to give, and goes to nobody at all when a window
/// like ours asks for it while a Wayland window has it. So there the window is a notification, to
/// which no compositor gives the keyboard, and it asks only while another X window has it.
class X11WindowTraits final : public WindowTraits, private QAbstractNativeEventFilter {
public:
    enum class Server { ordinary, xWayland };

    /// Borrows Qt's connection, which must outlive the traits. Needs a QGuiApplication.
    X11WindowTraits(xcb_connection_t* connection, Server server);
    ~X11WindowTraits() override;

    Qt::WindowFlags creationFlags() const override;
    /// True while a compositor runs.
    bool showsTranslucency() const override;
    void onTranslucencyChange(std::function<void()> changed) override;
    bool canExcludeFromCapture() const override;
    bool excludeFromCapture(NativeWindow window) override;

    void prepare(QWidget& window) override;
    void place(QWidget& window, const Rect& frame, const Screen& screen) override;
    Rect frame(const QWidget& window) const override;

    /// Keeps one window on top; another one takes the place of the first.
    void adopt(QWidget& window) override;
    void release(QWidget& window) override;
    bool canSetInputArea() const override { return true; }
    void setInputArea(QWidget& window, const std::optional<QRect>& area) override;

    void takeKeyboard(NativeWindow window) override;
    void giveKeyboardBack(NativeWindow window) override;
    void onKeyboardRefused(const std::function<void()>& refused) override;

private:
    using XWindow = std::uint32_t;

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    std::optional<XWindow> focusedWindow() const;
    bool isOurs(XWindow window) const;
    bool isKeyboardOutOfReach() const;
    void refuseKeyboard() const;
    bool focus(XWindow window) const;
    void claimKeyboard();

    xcb_connection_t* connection;
    const Server server;
    XWindow root;
    XWindow activeWindow; ///< the atom under which the root window tells it
    X11Stacking stacking;
    X11ManagerTurn managerTurn;
    X11Compositor compositor;
    std::function<void()> translucencyChanged;
    std::function<void()> keyboardRefused;
    XWindow floating = 0;
    XWindow previousFocus = 0;
    XWindow claiming = 0; ///< takes the keyboard until the window manager has had its turn
    bool reportedCapture = false;
    X11InputArea inputArea;
    QTimer raiseTimer;
};

} // namespace tessaline
