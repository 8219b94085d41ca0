#pragma once

#include "platform/GlobalKeyMonitor.h"
#include "platform/linux/desktop/portal/PortalShortcuts.h"

#include <memory>

namespace tessaline {

/// Hears a chord from the desktop's portal, on whatever key the desktop has for it, and from the
/// display server where that delivers any. A desktop keeps the keys that it gives from the display
/// server's windows, so that no press is heard twice.
class PortalKeyMonitor final : public GlobalKeyMonitor {
public:
    /// The display server's may be null.
    PortalKeyMonitor(std::shared_ptr<PortalShortcuts> shortcuts,
                     std::unique_ptr<GlobalKeyMonitor> server);

    std::unique_ptr<Registration> start(const Chord& chord, Handler handler) override;
    void onAction(const std::function<void(Action)>& act) override;

private:
    std::shared_ptr<PortalShortcuts> shortcuts;
    std::unique_ptr<GlobalKeyMonitor> server;
};

} // namespace tessaline
