#pragma once

#include <QUrl>

#include <chrono>

namespace tessaline {

/// Where usage signals go, and whether they go at all.
struct TelemetryOptions {
    /// The address of the telemetry service.
    static QUrl defaultBaseURL();

    /// What the environment asks for. A `TESSALINE_TELEMETRY_URL` that is not empty replaces the
    /// whole address; `DO_NOT_TRACK` set to anything but "" and "0" keeps every signal from being
    /// collected.
    static TelemetryOptions fromEnvironment();

    QUrl baseURL = defaultBaseURL();
    bool isAllowed = true;
    bool testMode = false;                     ///< marks signals as test signals
    std::chrono::milliseconds timeout{60'000}; ///< how long a batch may wait for its answer
};

} // namespace tessaline
