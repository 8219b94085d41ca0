#pragma once

#include <QLoggingCategory>

namespace tessaline {

Q_DECLARE_LOGGING_CATEGORY(shellLog) ///< ".shell": what the program says of itself

} // namespace tessaline
