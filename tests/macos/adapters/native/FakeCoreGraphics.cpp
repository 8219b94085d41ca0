#include "macos/adapters/FakeMac.h"

#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CoreGraphics.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

using tessaline::fakeMac;
using tessaline::FakeObjectiveC::Object;

TESSALINE_FAKE_CLASS(FakeGraphics);

namespace {

struct {
    CGEventTapCallBack callback = nullptr;
    void* context = nullptr;
} theTap;

struct {
    std::uint32_t* pixels = nullptr;
    std::size_t count = 0;
} theContext;

template <typename Reference>
Reference make(const QString& text) {
    return reinterpret_cast<Reference>(tessaline::FakeObjectiveC::make(FakeGraphicsClass, text));
}

QString textOf(const void* reference) {
    return static_cast<const Object*>(reference)->text;
}

void note(const QString& call) {
    fakeMac().calls += call;
}

tessaline::Passage handToTap(CGEventType type, CGEventRef event) {
    using tessaline::Passage;
    if (!theTap.callback) return Passage::noTap;
    return theTap.callback(nullptr, type, event, theTap.context) == event ? Passage::passedOn
                                                                          : Passage::swallowed;
}

} // namespace

namespace tessaline {

Passage sendThroughTap(const FakeMac::Event& event) {
    fakeMac().event = event;
    return handToTap(CGEventType(event.type), reinterpret_cast<CGEventRef>(&fakeMac().event));
}

Passage switchTapOff(std::uint32_t reason) {
    fakeMac().tapIsOn = false;
    return handToTap(CGEventType(reason), nullptr);
}

} // namespace tessaline

// Event taps.

CFMachPortRef CGEventTapCreate(CGEventTapLocation tap, CGEventTapPlacement place,
                               CGEventTapOptions options, CGEventMask eventsOfInterest,
                               CGEventTapCallBack callback, void* userInfo) {
    note(u"tap %1 %2 %3 %4"_s.arg(tap).arg(place).arg(options).arg(eventsOfInterest, 0, 16));
    if (!fakeMac().allowsTaps) return nullptr;
    if (userInfo) theTap = {callback, userInfo};
    return make<CFMachPortRef>(userInfo ? u"tap"_s : u"probe"_s);
}

void CGEventTapEnable(CFMachPortRef tap, bool enable) {
    note(u"enable %1 %2"_s.arg(textOf(tap)).arg(enable));
    fakeMac().tapIsOn = enable;
}

bool CGEventTapIsEnabled(CFMachPortRef /*tap*/) {
    return fakeMac().tapIsOn;
}

CGEventFlags CGEventGetFlags(CGEventRef event) {
    return reinterpret_cast<const tessaline::FakeMac::Event*>(event)->flags;
}

std::int64_t CGEventGetIntegerValueField(CGEventRef event, CGEventField field) {
    const auto* asked = reinterpret_cast<const tessaline::FakeMac::Event*>(event);
    return field == kCGMouseEventButtonNumber ? asked->button : -1;
}

CFRunLoopRef CFRunLoopGetMain() {
    return reinterpret_cast<CFRunLoopRef>(&FakeGraphicsClass);
}

CFRunLoopSourceRef CFMachPortCreateRunLoopSource(CFAllocatorRef /*allocator*/, CFMachPortRef port,
                                                 CFIndex /*order*/) {
    return fakeMac().allowsSources ? make<CFRunLoopSourceRef>(u"source of "_s + textOf(port))
                                   : nullptr;
}

void CFRunLoopAddSource(CFRunLoopRef rl, CFRunLoopSourceRef source, CFRunLoopMode mode) {
    const bool isUsual = rl == CFRunLoopGetMain() && mode == kCFRunLoopCommonModes;
    note(u"add %1%2"_s.arg(textOf(source), isUsual ? QString() : u" elsewhere"_s));
}

void CFRunLoopRemoveSource(CFRunLoopRef rl, CFRunLoopSourceRef source, CFRunLoopMode mode) {
    const bool isUsual = rl == CFRunLoopGetMain() && mode == kCFRunLoopCommonModes;
    note(u"remove %1%2"_s.arg(textOf(source), isUsual ? QString() : u" elsewhere"_s));
}

void CFMachPortInvalidate(CFMachPortRef port) {
    note(u"invalidate "_s + textOf(port));
    if (textOf(port) == u"tap"_s) theTap = {};
}

// Displays.

CGError CGGetActiveDisplayList(std::uint32_t maxDisplays, CGDirectDisplayID* activeDisplays,
                               std::uint32_t* displayCount) {
    const auto& displays = fakeMac().displays;
    const auto wanted =
        activeDisplays ? std::min<std::size_t>(maxDisplays, displays.size()) : displays.size();
    for (std::size_t i = 0; activeDisplays && i < wanted; ++i)
        activeDisplays[i] = displays[i].id;
    *displayCount = std::uint32_t(wanted);
    return kCGErrorSuccess;
}

CGRect CGDisplayBounds(CGDirectDisplayID display) {
    for (const auto& known : fakeMac().displays) {
        if (known.id != display) continue;
        return CGRectMake(known.bounds.x(), known.bounds.y(), known.bounds.width(),
                          known.bounds.height());
    }
    return {};
}

boolean_t CGDisplayIsBuiltin(CGDirectDisplayID display) {
    for (const auto& known : fakeMac().displays) {
        if (known.id == display) return known.isBuiltIn;
    }
    return false;
}

bool CGRectContainsPoint(CGRect rect, CGPoint point) {
    return point.x >= rect.origin.x && point.x < rect.origin.x + rect.size.width &&
           point.y >= rect.origin.y && point.y < rect.origin.y + rect.size.height;
}

// Drawing.

const CFStringRef kCGColorSpaceSRGB = nullptr;

CGColorSpaceRef CGColorSpaceCreateWithName(CFStringRef /*name*/) {
    return make<CGColorSpaceRef>(u"colours"_s);
}

CGContextRef CGBitmapContextCreate(void* data, std::size_t width, std::size_t height,
                                   std::size_t bitsPerComponent, std::size_t bytesPerRow,
                                   CGColorSpaceRef /*space*/, std::uint32_t bitmapInfo) {
    note(u"canvas %1x%2 %3 %4"_s.arg(width).arg(height).arg(bitsPerComponent).arg(bitmapInfo));
    theContext = {static_cast<std::uint32_t*>(data), bytesPerRow * height / sizeof(std::uint32_t)};
    return make<CGContextRef>(u"canvas"_s);
}

void CGContextDrawImage(CGContextRef /*c*/, CGRect rect, CGImageRef /*image*/) {
    note(u"draw %1x%2"_s.arg(rect.size.width).arg(rect.size.height));
    std::fill_n(theContext.pixels, theContext.count, 0x80402010U);
}
