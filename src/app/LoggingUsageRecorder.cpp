#include "app/LoggingUsageRecorder.h"

#include <QLoggingCategory>

namespace tessaline {

namespace {

Q_LOGGING_CATEGORY(analyticsLog, "app.tessaline.Tessaline.analytics", QtInfoMsg)

} // namespace

void LoggingUsageRecorder::record(const AnalyticsEvent& event) {
    qCDebug(analyticsLog) << event.name << event.properties;
}

} // namespace tessaline
