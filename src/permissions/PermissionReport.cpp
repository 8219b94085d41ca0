#include "permissions/PermissionReport.h"

#include "platform/PlatformTexts.h"

namespace tessaline {

AccessibilityTrust::Report permissionReport(const AccessibilityTrust& trust) {
    if (const auto report = trust.report()) return *report;
    return permissionReport(trust.isTrusted());
}

AccessibilityTrust::Report permissionReport(bool isTrusted) {
    const PlatformTexts& texts = platformTexts();
    return {.isWhole = isTrusted,
            .canBeGranted = !isTrusted && texts.permissionAlternative.isEmpty(),
            .state = isTrusted ? texts.granted : texts.notGranted,
            .note = isTrusted ? QString() : texts.permissionAlternative,
            .reachOfGestures = texts.reachOfGestures,
            .gesturesAreSeen = true};
}

} // namespace tessaline
