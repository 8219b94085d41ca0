#pragma once

#include <CoreFoundation/CoreFoundation.h>

extern "C" {

CFArrayRef LSCopyApplicationURLsForBundleIdentifier(CFStringRef inBundleIdentifier,
                                                    CFErrorRef* outError) CF_RETURNS_RETAINED;

} // extern "C"
