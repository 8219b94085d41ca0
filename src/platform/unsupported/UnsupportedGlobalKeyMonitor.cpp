#include "platform/unsupported/UnsupportedGlobalKeyMonitor.h"

#include <QLoggingCategory>

#include <utility>

namespace tessaline {

namespace {

Q_LOGGING_CATEGORY(inputLog, "tessaline.input")

} // namespace

std::unique_ptr<GlobalKeyMonitor::Registration>
UnsupportedGlobalKeyMonitor::start(const Chord& /*chord*/, Handler /*handler*/) {
    if (!std::exchange(reported, true)) {
        qCWarning(inputLog, "This system has no shortcuts for other applications.");
    }
    return nullptr;
}

} // namespace tessaline
