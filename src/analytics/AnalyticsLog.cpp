#include "analytics/AnalyticsLog.h"

namespace tessaline {

Q_LOGGING_CATEGORY(analyticsLog, "app.tessaline.Tessaline.analytics", QtWarningMsg)
Q_LOGGING_CATEGORY(perfLog, "app.tessaline.Tessaline.performance", QtWarningMsg)
Q_LOGGING_CATEGORY(intervalLog, "app.tessaline.Tessaline.intervals", QtWarningMsg)
Q_LOGGING_CATEGORY(telemetryLog, "app.tessaline.Tessaline.telemetry", QtWarningMsg)

} // namespace tessaline
