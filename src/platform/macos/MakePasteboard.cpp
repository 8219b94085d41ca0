#include "platform/SystemAdapters.h"
#include "platform/qt/QtPasteboard.h"

namespace tessaline {

std::unique_ptr<Pasteboard> makePasteboard(MainQueue& /*queue*/, TaskRunner& /*tasks*/) {
    return std::make_unique<QtPasteboard>();
}

} // namespace tessaline
