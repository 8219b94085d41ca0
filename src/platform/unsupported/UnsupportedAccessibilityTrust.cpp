#include "platform/unsupported/UnsupportedAccessibilityTrust.h"

#include "platform/PlatformLog.h"

#include <utility>

namespace tessaline {

bool UnsupportedAccessibilityTrust::isTrusted() const {
    return false;
}

void UnsupportedAccessibilityTrust::requestWithPrompt() {
    if (std::exchange(reported, true)) return;
    qCWarning(inputLog, "This system never lets a program see the input of others: shortcuts work "
                        "in windows of ours only.");
}

} // namespace tessaline
