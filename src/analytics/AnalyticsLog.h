#pragma once

#include <QLoggingCategory>

namespace tessaline {

// Where usage shows in the system log, below "app.tessaline.Tessaline". Warnings and errors are
// always written. To see the rest, set QT_LOGGING_RULES in the environment, for instance to
// "app.tessaline.Tessaline.analytics.info=true".

Q_DECLARE_LOGGING_CATEGORY(analyticsLog) ///< ".analytics": events at information level, failures
Q_DECLARE_LOGGING_CATEGORY(perfLog)      ///< ".performance": what flushes cost, at debug level
Q_DECLARE_LOGGING_CATEGORY(intervalLog)  ///< ".intervals": begin and end of flushes, at debug level
Q_DECLARE_LOGGING_CATEGORY(telemetryLog) ///< ".telemetry": signals that could not be sent

} // namespace tessaline
