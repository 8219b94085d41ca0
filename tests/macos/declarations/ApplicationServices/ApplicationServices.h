#pragma once

#include <CoreGraphics/CoreGraphics.h>

extern "C" {

extern CFStringRef kAXTrustedCheckOptionPrompt;
Boolean AXIsProcessTrusted(void);
Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef options);

} // extern "C"
