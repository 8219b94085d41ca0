#include "platform/WindowTraits.h"
#include "platform/macos/MacAdapters.h"
#include "platform/macos/MacInputArea.h"
#include "platform/macos/MacWindow.h"
#include "platform/qt/WidgetFrame.h"
#include "platform/unsupported/UnsupportedWindowTraits.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QWidget>

#import <AppKit/AppKit.h>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

namespace {

Q_LOGGING_CATEGORY(windowLog, "tessaline.windows")

class MacWindowTraits final : public WindowTraits {
public:
    Qt::WindowFlags creationFlags() const override { return {}; }

    bool showsTranslucency() const override { return true; }
    void onTranslucencyChange(std::function<void()> /*changed*/) override {}

    /// From macOS 15 on, what records the screen sees every window all the same.
    bool canExcludeFromCapture() const override {
        constexpr NSOperatingSystemVersion first{15, 0, 0};
        return ![NSProcessInfo.processInfo isOperatingSystemAtLeastVersion:first];
    }

    /// Also where it does not do all of its work: programs that take single windows in the old way
    /// still honour it.
    bool excludeFromCapture(NativeWindow window) override {
        windowOf(window).sharingType = NSWindowSharingNone;
        const bool works = canExcludeFromCapture();
        if (!works && !std::exchange(reported, true))
            qCWarning(windowLog, "This version of macOS shows the prompter in recordings.");
        return works;
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

    bool canSetInputArea() const override { return true; }

    void setInputArea(QWidget& window, const std::optional<QRect>& area) override {
        inputArea.set(window, area);
    }

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
    MacInputArea inputArea;
    bool reported = false;
};

} // namespace

std::unique_ptr<WindowTraits> makeWindowTraits() {
    // Qt's other platforms, such as offscreen, have no native windows.
    if (QGuiApplication::platformName() != u"cocoa"_s)
        return std::make_unique<UnsupportedWindowTraits>();
    return std::make_unique<MacWindowTraits>();
}

} // namespace tessaline
