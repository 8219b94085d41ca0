#pragma once

#include <TargetConditionals.h>

#include <cstddef>
#include <cstdint>

// In C++, a set of options is an integer type of its own name and constants without a type.
#define CF_ENUM(_type, _name)                                                                      \
    enum _name : _type _name;                                                                      \
    enum _name : _type
#define CF_OPTIONS(_type, _name)                                                                   \
    _type _name;                                                                                   \
    enum : _type
#define CF_BRIDGED_TYPE(T) __attribute__((objc_bridge(T)))
#define CF_RETURNS_RETAINED __attribute__((cf_returns_retained))

extern "C" {

typedef unsigned char Boolean;
typedef std::uint8_t UInt8;
typedef long CFIndex;
typedef unsigned long CFTypeID;

typedef const CF_BRIDGED_TYPE(id) void* CFTypeRef;
typedef CFTypeRef CFPropertyListRef;
typedef const struct CF_BRIDGED_TYPE(id) __CFAllocator* CFAllocatorRef;
typedef const struct CF_BRIDGED_TYPE(NSString) __CFString* CFStringRef;
typedef const struct CF_BRIDGED_TYPE(NSArray) __CFArray* CFArrayRef;
typedef const struct CF_BRIDGED_TYPE(NSDictionary) __CFDictionary* CFDictionaryRef;
typedef const struct CF_BRIDGED_TYPE(NSNumber) __CFBoolean* CFBooleanRef;
typedef const struct CF_BRIDGED_TYPE(NSURL) __CFURL* CFURLRef;
typedef struct CF_BRIDGED_TYPE(NSError) __CFError* CFErrorRef;
typedef struct CF_BRIDGED_TYPE(id) __CFBundle* CFBundleRef;
typedef struct CF_BRIDGED_TYPE(NSMachPort) __CFMachPort* CFMachPortRef;
typedef struct CF_BRIDGED_TYPE(id) __CFRunLoop* CFRunLoopRef;
typedef struct CF_BRIDGED_TYPE(id) __CFRunLoopSource* CFRunLoopSourceRef;
typedef CFStringRef CFRunLoopMode;

extern const CFAllocatorRef kCFAllocatorDefault;
extern const CFBooleanRef kCFBooleanTrue;
extern const CFRunLoopMode kCFRunLoopCommonModes;

void CFRelease(CFTypeRef cf);
CFTypeID CFGetTypeID(CFTypeRef cf);
CFTypeID CFStringGetTypeID(void);

// The members are of no concern to us.
typedef struct CFDictionaryKeyCallBacks CFDictionaryKeyCallBacks;
typedef struct CFDictionaryValueCallBacks CFDictionaryValueCallBacks;
extern const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
extern const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;
CFDictionaryRef
CFDictionaryCreate(CFAllocatorRef allocator, const void** keys, const void** values,
                   CFIndex numValues, const CFDictionaryKeyCallBacks* keyCallBacks,
                   const CFDictionaryValueCallBacks* valueCallBacks) CF_RETURNS_RETAINED;

CFBundleRef CFBundleGetMainBundle(void);
CFStringRef CFBundleGetIdentifier(CFBundleRef bundle);
CFTypeRef CFBundleGetValueForInfoDictionaryKey(CFBundleRef bundle, CFStringRef key);
CFURLRef CFBundleCopyResourcesDirectoryURL(CFBundleRef bundle) CF_RETURNS_RETAINED;
Boolean CFURLGetFileSystemRepresentation(CFURLRef url, Boolean resolveAgainstBase, UInt8* buffer,
                                         CFIndex maxBufLen);

CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key,
                                            CFStringRef applicationID) CF_RETURNS_RETAINED;
void CFPreferencesSetAppValue(CFStringRef key, CFPropertyListRef value, CFStringRef applicationID);
Boolean CFPreferencesAppSynchronize(CFStringRef applicationID);

CFRunLoopRef CFRunLoopGetMain(void);
void CFRunLoopAddSource(CFRunLoopRef rl, CFRunLoopSourceRef source, CFRunLoopMode mode);
void CFRunLoopRemoveSource(CFRunLoopRef rl, CFRunLoopSourceRef source, CFRunLoopMode mode);
CFRunLoopSourceRef CFMachPortCreateRunLoopSource(CFAllocatorRef allocator, CFMachPortRef port,
                                                 CFIndex order) CF_RETURNS_RETAINED;
void CFMachPortInvalidate(CFMachPortRef port);

} // extern "C"
