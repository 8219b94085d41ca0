#pragma once

#include "analytics/UsageRecorder.h"

#include <utility>
#include <vector>

namespace tessaline {

/// Keeps the usage events that it receives.
class RecordingUsageRecorder final : public UsageRecorder {
public:
    using ContentLoaded = std::pair<SourceType, qsizetype>;

    void trackContentLoaded(SourceType source, qsizetype wordCount) override {
        contentLoaded.emplace_back(source, wordCount);
    }

    std::vector<ContentLoaded> contentLoaded;
};

} // namespace tessaline
