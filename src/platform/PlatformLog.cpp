#include "platform/PlatformLog.h"

namespace tessaline {

Q_LOGGING_CATEGORY(inputLog, "tessaline.input")
Q_LOGGING_CATEGORY(windowLog, "tessaline.window")

} // namespace tessaline
