#pragma once

#include "analytics/EventDecoder.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessaline {

/// The events of a history; one that is no history is a failure.
inline std::vector<AnalyticsEvent> decoded(const QByteArray& bytes) {
    std::vector<AnalyticsEvent> events;
    QString error;
    EXPECT_TRUE(decodeEvents(
        bytes, [&events](const AnalyticsEvent& event) { events.push_back(event); }, &error))
        << error.toStdString();
    return events;
}

} // namespace tessaline
