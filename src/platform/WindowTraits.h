#pragma once

#include "platform/Rect.h"

#include <QRect>
#include <Qt>

#include <cstdint>
#include <functional>
#include <optional>

class QWidget;

namespace tessaline {

struct Screen;

/// What the prompter's window needs beyond what Qt offers. A native window is named by its
/// identifier, QWidget::winId; when Qt creates it anew, apply the traits again.
class WindowTraits {
public:
    using NativeWindow = std::uintptr_t;

    virtual ~WindowTraits() = default;

    /// Flags that the window has to be created with, on top of those that shape it.
    virtual Qt::WindowFlags creationFlags() const = 0;

    /// Whether translucent parts of a window show what lies below, at this moment. Otherwise the
    /// window has to be cut to its shape.
    virtual bool showsTranslucency() const = 0;

    /// Calls back whenever `showsTranslucency` may answer differently from now on. A later call
    /// replaces the callback.
    virtual void onTranslucencyChange(std::function<void()> changed) = 0;

    /// Whether `excludeFromCapture` can do its work here.
    virtual bool canExcludeFromCapture() const = 0;

    /// Leaves the window out of screenshots, recordings and screen sharing. False where the system
    /// cannot do that; this is logged once, and the window stays as it is.
    virtual bool excludeFromCapture(NativeWindow window) = 0;

    /// Tells the display server what it has to know of the window before it sees it. Call it when
    /// the native window is there, right before it is shown.
    virtual void prepare(QWidget& /*window*/) {}

    /// Puts the window into its place on a screen, shown or not: `frame` in points. On a display
    /// server that lets no window choose where it is, what counts is its size and how far it is
    /// from the screen's edges. Where there is no screen, an empty one is handed in.
    virtual void place(QWidget& window, const Rect& frame, const Screen& screen) = 0;

    /// Where the window is now, or will be once it is shown, in points.
    virtual Rect frame(const QWidget& window) const = 0;

    /// Keeps the window above menu bars, panels and full-screen windows, on every desktop, out of
    /// taskbar, pager and window cycling, for as long as it is shown. Call it right after the
    /// window was shown.
    virtual void adopt(QWidget& window) = 0;

    /// Ends what `adopt` began. Call it before the window is hidden or destroyed.
    virtual void release(QWidget& window) = 0;

    /// Whether `setInputArea` can do its work here.
    virtual bool canSetInputArea() const = 0;

    /// Has the window take the mouse only where the area says, in its own coordinates, and let it
    /// through to the windows below elsewhere; without one, wherever it is seen. Call it again once
    /// the window was shown or has another size.
    virtual void setInputArea(QWidget& window, const std::optional<QRect>& area) = 0;

    /// Directs the keyboard to the shown window and remembers who had it. Does nothing when the
    /// window has it already.
    virtual void takeKeyboard(NativeWindow window) = 0;

    /// Returns the keyboard to who had it before `takeKeyboard`, unless somebody else took it
    /// since.
    virtual void giveKeyboardBack(NativeWindow window) = 0;

    /// Calls back each time that `takeKeyboard` could not do its work, maybe a while later: some
    /// display servers leave the keyboard where it is. A later call replaces the callback.
    virtual void onKeyboardRefused(const std::function<void()>& /*refused*/) {}
};

} // namespace tessaline
