#pragma once

#include "platform/AccessibilityTrust.h"

namespace tessaline {

/// What the windows show of the permission: what the system says of it or, where that is yes or no,
/// these in the system's words.
AccessibilityTrust::Report permissionReport(const AccessibilityTrust& trust);
AccessibilityTrust::Report permissionReport(bool isTrusted);

} // namespace tessaline
