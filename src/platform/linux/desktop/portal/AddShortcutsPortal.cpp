#include "platform/linux/desktop/portal/AddShortcutsPortal.h"

#include "platform/Platform.h"
#include "platform/linux/desktop/portal/DBusShortcutsPortal.h"
#include "platform/linux/desktop/portal/PortalAccessibilityTrust.h"
#include "platform/linux/desktop/portal/PortalKeyMonitor.h"

#include <utility>

namespace tessaline {

void addShortcutsPortal(Platform& platform, GestureReach reach) {
    const auto shortcuts = std::make_shared<PortalShortcuts>(
        std::make_unique<DBusShortcutsPortal>(), *platform.defaults);
    platform.trust =
        std::make_unique<PortalAccessibilityTrust>(shortcuts, std::move(platform.trust), reach);
    platform.globalKeys =
        std::make_unique<PortalKeyMonitor>(shortcuts, std::move(platform.globalKeys));
}

} // namespace tessaline
