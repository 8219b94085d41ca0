#pragma once

#include "platform/AccessibilityTrust.h"
#include "platform/linux/desktop/portal/PortalShortcuts.h"

namespace tessaline {

/// Which windows of others let the wheel and the buttons be seen besides.
enum class GestureReach { xWindows, none };

/// What the windows say of the permission that the portal gives.
AccessibilityTrust::Report portalReport(PortalShortcuts::State state, const QString& toggleKey,
                                        GestureReach reach);

} // namespace tessaline
