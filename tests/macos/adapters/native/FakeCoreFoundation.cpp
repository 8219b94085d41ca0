#include "macos/adapters/FakeMac.h"

#include <ApplicationServices/ApplicationServices.h>
#include <CoreFoundation/CoreFoundation.h>
#include <CoreServices/CoreServices.h>

#include <cstring>

using namespace Qt::Literals::StringLiterals;

using tessaline::fakeMac;
using tessaline::FakeObjectiveC::Object;
namespace parts = tessaline::FakeMacParts;

TESSALINE_FAKE_CLASS(FakeType);

namespace {

Object constants[] = {{.name = "true"}, {.name = "prompt"}, {.name = "common modes"}};

Object* object(const void* reference) {
    return static_cast<Object*>(const_cast<void*>(reference));
}

template <typename Reference>
Reference make(const QString& text) {
    return reinterpret_cast<Reference>(tessaline::FakeObjectiveC::make(FakeTypeClass, text));
}

/// A name that stays where it is: nobody has to release it.
CFStringRef borrowed(const QString& text) {
    return reinterpret_cast<CFStringRef>(
        tessaline::FakeObjectiveC::autoreleased(parts::newString(text)));
}

QString entry(CFStringRef domain, CFStringRef key) {
    return object(domain)->text + u' ' + object(key)->text;
}

} // namespace

const CFAllocatorRef kCFAllocatorDefault = nullptr;
const CFBooleanRef kCFBooleanTrue = reinterpret_cast<CFBooleanRef>(&constants[0]);
CFStringRef kAXTrustedCheckOptionPrompt = reinterpret_cast<CFStringRef>(&constants[1]);
const CFRunLoopMode kCFRunLoopCommonModes = reinterpret_cast<CFStringRef>(&constants[2]);

struct CFDictionaryKeyCallBacks {
    int unused;
};
struct CFDictionaryValueCallBacks {
    int unused;
};
const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks{};
const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks{};

void CFRelease(CFTypeRef cf) {
    tessaline::FakeObjectiveC::release(object(cf));
}

CFTypeID CFGetTypeID(CFTypeRef cf) {
    return object(cf)->isa->name == "NSString" ? CFStringGetTypeID() : 1;
}

CFTypeID CFStringGetTypeID() {
    return 7;
}

// The permission.

CFDictionaryRef CFDictionaryCreate(CFAllocatorRef /*allocator*/, const void** keys,
                                   const void** values, CFIndex numValues,
                                   const CFDictionaryKeyCallBacks* keyCallBacks,
                                   const CFDictionaryValueCallBacks* valueCallBacks) {
    const bool isOrderly = numValues == 1 && keyCallBacks == &kCFTypeDictionaryKeyCallBacks &&
                           valueCallBacks == &kCFTypeDictionaryValueCallBacks;
    return make<CFDictionaryRef>(
        isOrderly ? QString::fromStdString(object(keys[0])->name + ": " + object(values[0])->name)
                  : u"?"_s);
}

Boolean AXIsProcessTrusted() {
    return fakeMac().isTrusted;
}

Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef options) {
    fakeMac().calls += u"trust with "_s + object(options)->text;
    return fakeMac().isTrusted;
}

// The bundle.

CFBundleRef CFBundleGetMainBundle() {
    return reinterpret_cast<CFBundleRef>(&FakeTypeClass);
}

CFStringRef CFBundleGetIdentifier(CFBundleRef /*bundle*/) {
    return fakeMac().bundleIdentifier ? borrowed(*fakeMac().bundleIdentifier) : nullptr;
}

CFTypeRef CFBundleGetValueForInfoDictionaryKey(CFBundleRef /*bundle*/, CFStringRef key) {
    const QString name = object(key)->text;
    if (name == u"a number"_s) {
        return tessaline::FakeObjectiveC::autoreleased(object(make<CFTypeRef>(u"42"_s)));
    }
    const auto found = fakeMac().bundleTexts.find(name);
    return found == fakeMac().bundleTexts.end() ? nullptr : borrowed(found->second);
}

CFURLRef CFBundleCopyResourcesDirectoryURL(CFBundleRef /*bundle*/) {
    return fakeMac().resources ? make<CFURLRef>(*fakeMac().resources) : nullptr;
}

Boolean CFURLGetFileSystemRepresentation(CFURLRef url, Boolean resolveAgainstBase, UInt8* buffer,
                                         CFIndex maxBufLen) {
    const QByteArray path = object(url)->text.toUtf8();
    if (!resolveAgainstBase || path.size() >= maxBufLen) return false;
    std::memcpy(buffer, path.constData(), std::size_t(path.size()) + 1);
    return true;
}

CFArrayRef LSCopyApplicationURLsForBundleIdentifier(CFStringRef inBundleIdentifier,
                                                    CFErrorRef* outError) {
    fakeMac().calls += u"applications "_s + object(inBundleIdentifier)->text;
    if (outError || fakeMac().applications.isEmpty()) return nullptr;
    return reinterpret_cast<CFArrayRef>(parts::newList(fakeMac().applications));
}

// Preferences.

CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef applicationID) {
    const QString name = entry(applicationID, key);
    if (name == fakeMac().preferenceOfAnotherType) return make<CFPropertyListRef>(u"42"_s);
    const auto found = fakeMac().preferences.find(name);
    return found == fakeMac().preferences.end() ? nullptr : parts::newString(found->second);
}

void CFPreferencesSetAppValue(CFStringRef key, CFPropertyListRef value, CFStringRef applicationID) {
    fakeMac().preferences[entry(applicationID, key)] = object(value)->text;
}

Boolean CFPreferencesAppSynchronize(CFStringRef applicationID) {
    fakeMac().calls += u"save "_s + object(applicationID)->text;
    return true;
}
