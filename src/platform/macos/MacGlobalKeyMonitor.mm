#include "platform/GlobalKeyMonitor.h"
#include "platform/macos/MacAdapters.h"
#include "platform/macos/MacModifierFlags.h"

#include <QLoggingCategory>

#import <AppKit/AppKit.h>

#include <utility>

namespace tessaline {

namespace {

Q_LOGGING_CATEGORY(keyLog, "tessaline.keys")

/// With Control held, a key's own characters are a control character. The Command key stays, since
/// layouts may have other letters for it, which are the ones that people know from menus.
QString chordCharacters(NSEvent* event) {
    const NSEventModifierFlags command = event.modifierFlags & NSEventModifierFlagCommand;
    return QString::fromNSString([event charactersByApplyingModifiers:command]);
}

KeyEvent keyEventFrom(NSEvent* event) {
    return {.characters = chordCharacters(event),
            .keyCode = event.keyCode,
            .modifiers = modifierFlagsFromNative(event.modifierFlags),
            .isRepeat = event.ARepeat != NO};
}

class MonitorRegistration final : public GlobalKeyMonitor::Registration {
public:
    explicit MonitorRegistration(id nativeMonitor) : monitor(nativeMonitor) {}
    ~MonitorRegistration() override { [NSEvent removeMonitor:monitor]; }
    MonitorRegistration(const MonitorRegistration&) = delete;
    MonitorRegistration& operator=(const MonitorRegistration&) = delete;

private:
    const id monitor;
};

class MacGlobalKeyMonitor final : public GlobalKeyMonitor {
public:
    /// Delivers every key, whatever the chord is.
    std::unique_ptr<Registration> start(const Chord& /*chord*/, Handler handler) override {
        id monitor = [NSEvent addGlobalMonitorForEventsMatchingMask:NSEventMaskKeyDown
                                                            handler:^(NSEvent* event) {
                                                              handler(keyEventFrom(event));
                                                            }];
        if (!monitor) {
            qCWarning(keyLog, "The system does not let keys of other applications be heard.");
            return nullptr;
        }
        return std::make_unique<MonitorRegistration>(monitor);
    }
};

} // namespace

std::unique_ptr<GlobalKeyMonitor> makeGlobalKeyMonitor() {
    return std::make_unique<MacGlobalKeyMonitor>();
}

} // namespace tessaline
