#include "platform/linux/x11/X11AccessibilityTrust.h"

#include "platform/PlatformLog.h"
#include "platform/linux/x11/X11Connection.h"

namespace tessaline {

X11AccessibilityTrust::X11AccessibilityTrust() : trusted(X11Connection::open() != nullptr) {}

bool X11AccessibilityTrust::isTrusted() const {
    return trusted;
}

void X11AccessibilityTrust::requestWithPrompt() {
    if (trusted) return;
    qCWarning(inputLog, "Shortcuts work in windows of ours only: this X server does not offer "
                        "XInput 2.1 and XKB.");
}

} // namespace tessaline
