#include "platform/NativeLook.h"
#include "platform/macos/MacAdapters.h"

#import <AppKit/AppKit.h>

namespace tessaline {

namespace {

class MacNativeLook final : public NativeLook {
public:
    bool showDark() override {
        NSApp.appearance = [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
        return true;
    }
};

} // namespace

std::unique_ptr<NativeLook> makeNativeLook() {
    return std::make_unique<MacNativeLook>();
}

} // namespace tessaline
