#include "platform/WindowTraits.h"
#include "platform/macos/MacAdapters.h"
#include "platform/qt/WidgetFrame.h"
#include "platform/unsupported/UnsupportedWindowTraits.h"

#include <QGuiApplication>
#include <QWidget>

#import <AppKit/AppKit.h>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

namespace {

/// Qt's native identifier of a window is its view.
NSWindow* windowOf(WindowTraits::NativeWindow window) {
    return ((__bridge NSView*)reinterpret_cast<void*>(window)).window;
}

class MacWindowTraits final : public WindowTraits {
public:
    Qt::WindowFlags creationFlags() const override { return {}; }

    bool showsTranslucency() const override { return true; }
    void onTranslucencyChange(std::function<void()> /*changed*/) override {}

    bool canExcludeFromCapture() const override { return true; }

    /// The system leaves it to a recording program whether it honours this.
    bool excludeFromCapture(NativeWindow window) override {
        windowOf(window).sharingType = NSWindowSharingNone;
        return true;
    }

    void place(QWidget& window, const Rect& frame, const Screen& /*screen*/) override {
        setFrame(window, frame);
    }

    Rect frame(const QWidget& window) const override { return frameOf(window); }

    void adopt(QWidget& window) override {
        NSWindow* native = windowOf(window.winId());
        native.level = NSScreenSaverWindowLevel;
        native.collectionBehavior = NSWindowCollectionBehaviorCanJoinAllSpaces |
                                    NSWindowCollectionBehaviorStationary |
                                    NSWindowCollectionBehaviorIgnoresCycle;
        native.hasShadow = YES;
    }

    void release(QWidget& /*window*/) override {}

    void takeKeyboard(NativeWindow window) override {
        // The click that leads here may have made us the front application already. The menu bar
        // still belongs to the one before, since a helper has none.
        NSRunningApplication* owner = NSWorkspace.sharedWorkspace.menuBarOwningApplication;
        previous = [owner isEqual:NSRunningApplication.currentApplication] ? nil : owner;
        NSWindow* native = windowOf(window);
        if (NSApp.active && native.keyWindow) return;
        [NSApp activateIgnoringOtherApps:YES];
        [native makeKeyWindow];
    }

    void giveKeyboardBack(NativeWindow window) override {
        NSRunningApplication* receiver = previous;
        previous = nil;
        NSWindow* key = NSApp.keyWindow;
        const bool takenSince = !NSApp.active || (key && key != windowOf(window));
        if (!takenSince) [receiver activateWithOptions:0];
    }

private:
    NSRunningApplication* previous = nil;
};

} // namespace

std::unique_ptr<WindowTraits> makeWindowTraits() {
    // Qt's other platforms, such as offscreen, have no native windows.
    if (QGuiApplication::platformName() != u"cocoa"_s)
        return std::make_unique<UnsupportedWindowTraits>();
    return std::make_unique<MacWindowTraits>();
}

} // namespace tessaline
