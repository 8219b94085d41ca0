#include "platform/SystemAdapters.h"

#import <AppKit/AppKit.h>

namespace tessaline {

bool showNativeDarkAppearance() {
    NSApp.appearance = [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
    return true;
}

} // namespace tessaline
