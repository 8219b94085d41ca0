#include "platform/linux/desktop/portal/PortalAccessibilityTrust.h"

#include <utility>

namespace tessaline {

PortalAccessibilityTrust::PortalAccessibilityTrust(
    std::shared_ptr<PortalShortcuts> portalShortcuts,
    std::unique_ptr<AccessibilityTrust> displayServer, GestureReach gestures)
    : shortcuts(std::move(portalShortcuts)), server(std::move(displayServer)), reach(gestures) {}

bool PortalAccessibilityTrust::isTrusted() const {
    return shortcuts->state() == PortalShortcuts::State::granted || server->isTrusted();
}

void PortalAccessibilityTrust::requestWithPrompt() {
    shortcuts->ask();
}

std::optional<AccessibilityTrust::Report> PortalAccessibilityTrust::report() const {
    return portalReport(shortcuts->state(), shortcuts->toggleKey(), reach);
}

} // namespace tessaline
