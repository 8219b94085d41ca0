#pragma once

#include "platform/AccessibilityTrust.h"
#include "platform/linux/desktop/portal/PortalReport.h"

#include <memory>

namespace tessaline {

/// The permission that a desktop's portal gives, besides what the display server lets the program
/// see without.
class PortalAccessibilityTrust final : public AccessibilityTrust {
public:
    PortalAccessibilityTrust(std::shared_ptr<PortalShortcuts> shortcuts,
                             std::unique_ptr<AccessibilityTrust> server, GestureReach reach);

    bool isTrusted() const override;
    void requestWithPrompt() override;
    std::optional<Report> report() const override;

private:
    std::shared_ptr<PortalShortcuts> shortcuts;
    std::unique_ptr<AccessibilityTrust> server;
    GestureReach reach;
};

} // namespace tessaline
