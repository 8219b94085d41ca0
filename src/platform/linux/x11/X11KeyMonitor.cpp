#include "platform/linux/x11/X11KeyMonitor.h"

#include "platform/PlatformLog.h"
#include "platform/linux/x11/X11KeyGrab.h"

#include <utility>

namespace tessaline {

std::unique_ptr<GlobalKeyMonitor::Registration> X11KeyMonitor::start(const Chord& chord,
                                                                     Handler handler) {
    auto connection = X11Connection::open();
    if (!connection) return nullptr;
    auto grab = std::make_unique<X11KeyGrab>(std::move(connection), chord, std::move(handler));
    if (grab->take()) {
        reportedRefusal = false;
        return grab;
    }
    if (!std::exchange(reportedRefusal, true)) {
        qCWarning(inputLog, "Another program holds the shortcut for other applications, or no key "
                            "types it; it is left to that program until it gives it up.");
    }
    return nullptr;
}

} // namespace tessaline
