#pragma once

#include <Qt>

#include <cstdint>
#include <functional>

namespace tessaline {

/// What the prompter's window needs beyond what Qt offers. Windows are named by their native
/// identifier, QWidget::winId; when Qt creates the native window anew, apply the traits again. Main
/// thread only.
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

    /// Keeps the window above menu bars, panels and full-screen windows, on every desktop, out of
    /// taskbar, pager and window cycling. Call it before the window is shown.
    virtual void floatAboveEverything(NativeWindow window) = 0;

    /// Directs the keyboard to the shown window and remembers who had it. Does nothing when the
    /// window has it already.
    virtual void takeKeyboard(NativeWindow window) = 0;

    /// Returns the keyboard to who had it before `takeKeyboard`, unless somebody else took it
    /// since.
    virtual void giveKeyboardBack(NativeWindow window) = 0;
};

} // namespace tessaline
