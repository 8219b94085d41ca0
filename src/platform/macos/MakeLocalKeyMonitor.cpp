#include "platform/SystemAdapters.h"
#include "platform/qt/QtLocalKeyMonitor.h"

namespace tessaline {

std::unique_ptr<LocalKeyMonitor> makeLocalKeyMonitor() {
    return std::make_unique<QtLocalKeyMonitor>(KeyTranslation::command);
}

} // namespace tessaline
