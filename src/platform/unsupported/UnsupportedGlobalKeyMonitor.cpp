#include "platform/unsupported/UnsupportedGlobalKeyMonitor.h"

#include "platform/PlatformLog.h"

#include <utility>

namespace tessaline {

std::unique_ptr<GlobalKeyMonitor::Registration>
UnsupportedGlobalKeyMonitor::start(const Chord& /*chord*/, Handler /*handler*/) {
    if (!std::exchange(reported, true)) {
        qCWarning(inputLog, "This system has no shortcuts for other applications.");
    }
    return nullptr;
}

} // namespace tessaline
