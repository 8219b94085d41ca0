#include "platform/EventTap.h"
#include "platform/macos/CfHolder.h"
#include "platform/macos/MacAdapters.h"
#include "platform/macos/MacModifierFlags.h"

#import <AppKit/AppKit.h>

#include <utility>

namespace tessaline {

namespace {

constexpr CGEventMask tappedEvents = CGEventMaskBit(kCGEventRightMouseDown) |
                                     CGEventMaskBit(kCGEventScrollWheel) |
                                     CGEventMaskBit(kCGEventOtherMouseDown);

TapEvent buttonEvent(TapEvent::Type type, CGEventRef event) {
    const auto button = CGEventGetIntegerValueField(event, kCGMouseEventButtonNumber);
    return {.type = type,
            .modifiers = modifierFlagsFromNative(CGEventGetFlags(event)),
            .buttonNumber = static_cast<int>(button)};
}

TapEvent scrollEvent(CGEventRef event) {
    TapEvent result{.type = TapEvent::Type::scrollWheel,
                    .modifiers = modifierFlagsFromNative(CGEventGetFlags(event))};
    NSEvent* readable = [NSEvent eventWithCGEvent:event];
    result.isReadable = readable != nil;
    if (readable) {
        result.hasPreciseDeltas = readable.hasPreciseScrollingDeltas;
        result.scrollingDeltaY = readable.scrollingDeltaY;
    }
    return result;
}

/// The event of a tap that was switched off holds nothing to read.
TapEvent tapEventFrom(CGEventType type, CGEventRef event) {
    switch (type) {
    case kCGEventTapDisabledByTimeout:
    case kCGEventTapDisabledByUserInput:
        return {.type = TapEvent::Type::tapDisabled};
    case kCGEventScrollWheel:
        return scrollEvent(event);
    case kCGEventOtherMouseDown:
        return buttonEvent(TapEvent::Type::otherMouseDown, event);
    case kCGEventRightMouseDown:
        return buttonEvent(TapEvent::Type::rightMouseDown, event);
    default:
        return {.type = TapEvent::Type::other};
    }
}

/// A tap of the session that may swallow events, ahead of all others; null where the system allows
/// none now.
CFMachPortRef createFilter(CGEventMask events, CGEventTapCallBack callback,
                           void* context) CF_RETURNS_RETAINED {
    return CGEventTapCreate(kCGSessionEventTap, kCGHeadInsertEventTap, kCGEventTapOptionDefault,
                            events, callback, context);
}

CGEventRef passOn(CGEventTapProxy /*proxy*/, CGEventType /*type*/, CGEventRef event,
                  void* /*context*/) {
    return event;
}

/// A tap of the session, ahead of all others, served by the main run loop.
class MacEventTap final : public EventTap {
public:
    /// Call `install` before anything else.
    explicit MacEventTap(Handler action) : handler(std::move(action)) {}

    ~MacEventTap() override {
        if (!port) return;
        if (source) CFRunLoopRemoveSource(CFRunLoopGetMain(), source.get(), kCFRunLoopCommonModes);
        CFMachPortInvalidate(port.get());
    }

    MacEventTap(const MacEventTap&) = delete;
    MacEventTap& operator=(const MacEventTap&) = delete;

    /// False when the system does not allow a tap now.
    bool install() {
        port.reset(createFilter(tappedEvents, &MacEventTap::receive, this));
        if (!port) return false;
        source.reset(CFMachPortCreateRunLoopSource(kCFAllocatorDefault, port.get(), 0));
        if (!source) return false;
        CFRunLoopAddSource(CFRunLoopGetMain(), source.get(), kCFRunLoopCommonModes);
        enable();
        return true;
    }

    void enable() override { CGEventTapEnable(port.get(), true); }
    bool isOn() const override { return CGEventTapIsEnabled(port.get()); }

private:
    static CGEventRef receive(CGEventTapProxy /*proxy*/, CGEventType type, CGEventRef event,
                              void* context) {
        const auto* tap = static_cast<const MacEventTap*>(context);
        @autoreleasepool {
            const Verdict verdict = tap->handler(tapEventFrom(type, event));
            return verdict == Verdict::swallow ? nullptr : event;
        }
    }

    const Handler handler;
    CfHolder<CFMachPortRef> port;
    CfHolder<CFRunLoopSourceRef> source;
};

class MacEventTapMaker final : public EventTapMaker {
public:
    std::unique_ptr<EventTap> create(EventTap::Handler handler) override {
        auto tap = std::make_unique<MacEventTap>(std::move(handler));
        if (!tap->install()) return nullptr;
        return tap;
    }

    bool wouldAllow() override {
        // Nobody serves it, so it is there for the rarest events only, and for no longer than this.
        const CfHolder<CFMachPortRef> probe(
            createFilter(CGEventMaskBit(kCGEventOtherMouseDown), &passOn, nullptr));
        if (probe) CFMachPortInvalidate(probe.get());
        return probe != nullptr;
    }
};

} // namespace

std::unique_ptr<EventTapMaker> makeEventTapMaker() {
    return std::make_unique<MacEventTapMaker>();
}

} // namespace tessaline
