#pragma once

#include "analytics/UsageRecorder.h"

namespace tessaline {

/// Writes usage events to the log, in the category "analytics" at debug level, and keeps nothing.
class LoggingUsageRecorder final : public UsageRecorder {
public:
    void trackContentLoaded(SourceType source, qsizetype wordCount) override;
};

} // namespace tessaline
