#pragma once

#include "analytics/UsageRecorder.h"

#include <utility>
#include <vector>

namespace tessaline {

/// Keeps the usage events that it receives.
class RecordingUsageRecorder final : public UsageRecorder {
public:
    using ContentLoaded = std::pair<SourceType, qsizetype>;

    void record(const AnalyticsEvent& event) override { events.push_back(event); }
    void trackAppLaunch() override { record({.name = QStringLiteral("app_launch")}); }
    void trackAppTerminate() override { record({.name = QStringLiteral("app_terminate")}); }

    void trackEnvironmentSnapshot(const AppSettings& settings) override {
        static_cast<void>(settings);
        record({.name = QStringLiteral("environment_snapshot")});
    }

    void trackContentLoaded(SourceType source, qsizetype wordCount) override {
        contentLoaded.emplace_back(source, wordCount);
        UsageRecorder::trackContentLoaded(source, wordCount);
    }

    /// The names of all events, in order.
    std::vector<QString> names() const {
        std::vector<QString> all;
        for (const AnalyticsEvent& event : events)
            all.push_back(event.name);
        return all;
    }

    std::vector<AnalyticsEvent> events;
    std::vector<ContentLoaded> contentLoaded;
};

} // namespace tessaline
