#include "app/LoggingUsageRecorder.h"

#include <QLoggingCategory>

namespace tessaline {

namespace {

Q_LOGGING_CATEGORY(analyticsLog, "app.tessaline.Tessaline.analytics", QtInfoMsg)

} // namespace

void LoggingUsageRecorder::trackContentLoaded(SourceType source, qsizetype wordCount) {
    qCDebug(analyticsLog).noquote().nospace()
        << "[content_loaded] source_type=" << rawValue(source) << ", word_count=" << wordCount;
}

} // namespace tessaline
