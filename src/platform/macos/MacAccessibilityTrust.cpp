#include "platform/AccessibilityTrust.h"
#include "platform/macos/CfHolder.h"
#include "platform/macos/MacAdapters.h"

#include <ApplicationServices/ApplicationServices.h>

namespace tessaline {

namespace {

class MacAccessibilityTrust final : public AccessibilityTrust {
public:
    bool isTrusted() const override { return AXIsProcessTrusted(); }

    void requestWithPrompt() override {
        const void* key = kAXTrustedCheckOptionPrompt;
        const void* value = kCFBooleanTrue;
        const CfHolder<CFDictionaryRef> options(
            CFDictionaryCreate(kCFAllocatorDefault, &key, &value, 1, &kCFTypeDictionaryKeyCallBacks,
                               &kCFTypeDictionaryValueCallBacks));
        AXIsProcessTrustedWithOptions(options.get());
    }
};

} // namespace

std::unique_ptr<AccessibilityTrust> makeAccessibilityTrust() {
    return std::make_unique<MacAccessibilityTrust>();
}

} // namespace tessaline
