#include "app/ShellLog.h"

namespace tessaline {

Q_LOGGING_CATEGORY(shellLog, "app.tessaline.Tessaline.shell", QtInfoMsg)

} // namespace tessaline
