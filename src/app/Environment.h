#pragma once

#include <QString>

#include <functional>

namespace tessaline {

class NoteLibrary;
class ObsidianIntegration;
class UsageRecorder;
struct Platform;

/// What the delegate borrows of the system and of the rest of the program, for its whole life.
struct Environment {
    const Platform& platform;
    ObsidianIntegration& obsidian;
    NoteLibrary& notes;
    UsageRecorder& recorder;

    /// Where usage signals go; called once at most.
    std::function<void(const QString& appID)> setTelemetryAppID;
    /// Ends the program, after `applicationWillTerminate`.
    std::function<void()> terminate;
};

} // namespace tessaline
