#pragma once

#include "analytics/SystemDescription.h"
#include "analytics/UsageRecorder.h"

#include <QDateTime>
#include <QMap>
#include <QString>

#include <functional>
#include <memory>

namespace tessaline {

class EnvironmentProbe;
class EventHistory;
class RepeatingTimer;
struct Platform;

/// Records usage: keeps the events of the last 30 days in a file, writes each to the log and hands
/// it on to be sent. Created, used and destroyed on the main thread; `record` and the `track…`
/// operations that build on it alone may come from any thread. No failure reaches a caller.
class Analytics final : public UsageRecorder {
public:
    using Properties = QMap<QString, QString>;

    /// Everything it needs. References are borrowed.
    struct Setup {
        const Platform& platform;
        const EnvironmentProbe& environment;
        /// Receives every event, on the thread that records it: TelemetryDeckClient::signal.
        std::function<void(const QString& name, const Properties& parameters)> signal;
        /// The time, asked for from any thread.
        std::function<QDateTime()> now = &QDateTime::currentDateTimeUtc;
        SystemDescription system = SystemDescription::current();
        QString historyPath = defaultHistoryPath();
    };

    /// The file "analytics.json" among the program's own files.
    static QString defaultHistoryPath();

    /// The process's recorder. The application says how it is made, in a SharedInstance.
    static Analytics& shared();

    /// Starts a session: begins to read the history, and to write it every minute, both on
    /// the platform's tasks for the history.
    explicit Analytics(Setup setup);
    ~Analytics() override;
    Analytics(const Analytics&) = delete;
    Analytics& operator=(const Analytics&) = delete;

    void record(const AnalyticsEvent& event) override;

    /// Has the history written in the background. Takes the same short time for any history.
    void flush();

    void trackAppLaunch() override;

    /// Returns when the history, this event included, is in the file or the failure in the log.
    void trackAppTerminate() override;

    void trackEnvironmentSnapshot(const AppSettings& settings) override;
    void trackOnboardingStarted() override;
    void trackOnboardingCompleted(bool accessibilityGranted, bool obsidianEnabled) override;
    void trackSourceChanged(SourceType to) override;
    void trackContentPasted(qsizetype wordCount) override;
    void trackAutoScrollToggled(bool enabled, ScrollRate rate) override;

private:
    double secondsSinceStart() const;
    Properties describeEnvironment(const AppSettings& settings) const;

    const Setup setup;
    const QString sessionId;
    const QDateTime sessionStart;
    const std::shared_ptr<EventHistory> history;
    std::unique_ptr<RepeatingTimer> flushTimer;
};

} // namespace tessaline
