#pragma once

#include "analytics/UsageRecorder.h"

namespace tessaline {

/// Writes usage events to the log, in the category "analytics" at debug level, and keeps nothing.
class LoggingUsageRecorder final : public UsageRecorder {
public:
    void record(const AnalyticsEvent& event) override;
    void trackAppLaunch() override {}
    void trackAppTerminate() override {}
    void trackEnvironmentSnapshot(const AppSettings&) override {}
};

} // namespace tessaline
