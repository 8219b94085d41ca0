#pragma once

#include <CoreFoundation/CoreFoundation.h>

extern "C" {

typedef double CGFloat;

struct CGPoint {
    CGFloat x;
    CGFloat y;
};
typedef struct CGPoint CGPoint;

struct CGSize {
    CGFloat width;
    CGFloat height;
};
typedef struct CGSize CGSize;

struct CGRect {
    CGPoint origin;
    CGSize size;
};
typedef struct CGRect CGRect;

inline CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    return {{x, y}, {width, height}};
}
bool CGRectContainsPoint(CGRect rect, CGPoint point);

// Displays.

typedef CF_ENUM(std::int32_t, CGError) { kCGErrorSuccess = 0 };
typedef unsigned int boolean_t;
typedef std::uint32_t CGDirectDisplayID;

CGError CGGetActiveDisplayList(std::uint32_t maxDisplays, CGDirectDisplayID* activeDisplays,
                               std::uint32_t* displayCount);
CGRect CGDisplayBounds(CGDirectDisplayID display);
boolean_t CGDisplayIsBuiltin(CGDirectDisplayID display);

// Drawing.

typedef struct CF_BRIDGED_TYPE(id) CGImage* CGImageRef;
typedef struct CF_BRIDGED_TYPE(id) CGContext* CGContextRef;
typedef struct CF_BRIDGED_TYPE(id) CGColorSpace* CGColorSpaceRef;

typedef CF_ENUM(std::uint32_t, CGImageAlphaInfo) { kCGImageAlphaPremultipliedFirst = 2 };
typedef CF_OPTIONS(std::uint32_t, CGBitmapInfo) { kCGBitmapByteOrder32Little = 2 << 12 };
#define kCGBitmapByteOrder32Host kCGBitmapByteOrder32Little

extern const CFStringRef kCGColorSpaceSRGB;
CGColorSpaceRef CGColorSpaceCreateWithName(CFStringRef name) CF_RETURNS_RETAINED;
CGContextRef CGBitmapContextCreate(void* data, std::size_t width, std::size_t height,
                                   std::size_t bitsPerComponent, std::size_t bytesPerRow,
                                   CGColorSpaceRef space,
                                   std::uint32_t bitmapInfo) CF_RETURNS_RETAINED;
void CGContextDrawImage(CGContextRef c, CGRect rect, CGImageRef image);

// Events.

typedef struct CF_BRIDGED_TYPE(id) __CGEvent* CGEventRef;
typedef struct __CGEventTapProxy* CGEventTapProxy;
typedef std::uint64_t CGEventMask;
#define CGEventMaskBit(eventType) ((CGEventMask)1 << (eventType))

typedef CF_ENUM(std::uint32_t, CGEventType) {
    kCGEventRightMouseDown = 3,
    kCGEventScrollWheel = 22,
    kCGEventOtherMouseDown = 25,
    kCGEventTapDisabledByTimeout = 0xFFFFFFFE,
    kCGEventTapDisabledByUserInput = 0xFFFFFFFF,
};
typedef CF_OPTIONS(std::uint64_t, CGEventFlags) {
    kCGEventFlagMaskShift = 0x20000,
    kCGEventFlagMaskControl = 0x40000,
    kCGEventFlagMaskAlternate = 0x80000,
    kCGEventFlagMaskCommand = 0x100000,
};
typedef CF_ENUM(std::uint32_t, CGEventField) { kCGMouseEventButtonNumber = 3 };
typedef CF_ENUM(std::uint32_t, CGEventTapLocation) { kCGSessionEventTap = 1 };
typedef CF_ENUM(std::uint32_t, CGEventTapPlacement) { kCGHeadInsertEventTap = 0 };
typedef CF_ENUM(std::uint32_t, CGEventTapOptions) { kCGEventTapOptionDefault = 0 };

typedef CGEventRef (*CGEventTapCallBack)(CGEventTapProxy proxy, CGEventType type, CGEventRef event,
                                         void* userInfo);
CFMachPortRef CGEventTapCreate(CGEventTapLocation tap, CGEventTapPlacement place,
                               CGEventTapOptions options, CGEventMask eventsOfInterest,
                               CGEventTapCallBack callback, void* userInfo) CF_RETURNS_RETAINED;
void CGEventTapEnable(CFMachPortRef tap, bool enable);
bool CGEventTapIsEnabled(CFMachPortRef tap);
CGEventFlags CGEventGetFlags(CGEventRef event);
std::int64_t CGEventGetIntegerValueField(CGEventRef event, CGEventField field);

} // extern "C"
