#include "platform/ActivationPolicy.h"
#include "platform/macos/MacAdapters.h"

#import <AppKit/AppKit.h>

namespace tessaline {

namespace {

class MacActivationPolicy final : public ActivationPolicy {
public:
    void set(Kind kind) override {
        [NSApp setActivationPolicy:kind == Kind::regular ? NSApplicationActivationPolicyRegular
                                                         : NSApplicationActivationPolicyAccessory];
    }

    void activateIgnoringOtherApps() override { [NSApp activateIgnoringOtherApps:YES]; }
};

} // namespace

std::unique_ptr<ActivationPolicy> makeActivationPolicy() {
    return std::make_unique<MacActivationPolicy>();
}

} // namespace tessaline
