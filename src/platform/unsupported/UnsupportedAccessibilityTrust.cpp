#include "platform/unsupported/UnsupportedAccessibilityTrust.h"

#include <QLoggingCategory>

#include <utility>

namespace tessaline {

namespace {

Q_LOGGING_CATEGORY(inputLog, "tessaline.input")

} // namespace

bool UnsupportedAccessibilityTrust::isTrusted() const {
    return false;
}

void UnsupportedAccessibilityTrust::requestWithPrompt() {
    if (std::exchange(reported, true)) return;
    qCWarning(inputLog, "This system never lets a program see the input of others: shortcuts work "
                        "in windows of ours only.");
}

} // namespace tessaline
