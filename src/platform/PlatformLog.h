#pragma once

#include <QLoggingCategory>

namespace tessaline {

Q_DECLARE_LOGGING_CATEGORY(inputLog)  ///< "tessaline.input": shortcuts and gestures
Q_DECLARE_LOGGING_CATEGORY(windowLog) ///< "tessaline.window": places and looks of windows

} // namespace tessaline
