#pragma once

#include "platform/WindowTraits.h"

#import <AppKit/AppKit.h>

namespace tessaline {

/// Qt's native identifier of a window is its view.
inline NSWindow* windowOf(WindowTraits::NativeWindow window) {
    return ((__bridge NSView*)reinterpret_cast<void*>(window)).window;
}

} // namespace tessaline
