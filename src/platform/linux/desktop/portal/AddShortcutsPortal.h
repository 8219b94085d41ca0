#pragma once

#include "platform/linux/desktop/portal/PortalReport.h"

namespace tessaline {

struct Platform;

/// Puts the desktop's portal for shortcuts before the display server's adapter for the permission,
/// which must be there, and before the one for keys, if there is one.
void addShortcutsPortal(Platform& platform, GestureReach reach);

} // namespace tessaline
