#pragma once

#include "analytics/SystemDescription.h"
#include "analytics/TelemetryOptions.h"
#include "platform/HttpPoster.h"

#include <QByteArray>
#include <QDateTime>
#include <QMap>
#include <QString>

#include <chrono>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <vector>

namespace tessaline {

class RepeatingTimer;
struct Platform;

/// Sends usage signals to the telemetry service: collects them in memory and posts a batch every 10
/// seconds. One batch is under way at a time, so that signals arrive in order. A batch that no
/// answer came to in a minute is sent again, ahead of newer signals; one that the service refuses
/// is dropped, and so is one that it wants to have sent elsewhere. Main thread, except for
/// `signal`.
class TelemetryDeckClient {
public:
    using Parameters = QMap<QString, QString>;

    /// Everything it needs. References are borrowed.
    struct Setup {
        const Platform& platform;
        /// The time, asked for from any thread.
        std::function<QDateTime()> now = &QDateTime::currentDateTimeUtc;
        SystemDescription system = SystemDescription::current();
    };

    /// The process's client. The application says how it is made, in a SharedInstance.
    static TelemetryDeckClient& shared();

    explicit TelemetryDeckClient(Setup setup,
                                 TelemetryOptions options = TelemetryOptions::fromEnvironment());
    ~TelemetryDeckClient();
    TelemetryDeckClient(const TelemetryDeckClient&) = delete;
    TelemetryDeckClient& operator=(const TelemetryDeckClient&) = delete;

    /// The application that later signals name; empty at first.
    void setAppID(const QString& id);

    /// Collects a signal, to be sent later; where signals are not allowed, does nothing at all. A
    /// parameter replaces what every signal says under the same key. Any thread.
    void signal(const QString& name, const Parameters& parameters);

    /// Starts to send what was collected. With a batch under way this happens right after that one.
    void flush();

    /// To be called when the program ends: sends what was collected, whether or not a batch is
    /// still under way.
    void appWillTerminate();

    /// Runs an event loop, without user input, until no request is under way any more, at most for
    /// this long. Whether that was achieved. A clean end of the program calls it after
    /// `appWillTerminate`, with a second at most; what has not left by then is lost.
    bool waitForRequests(std::chrono::milliseconds longest);

private:
    using Batch = std::vector<QByteArray>; ///< encoded signals

    struct Sending {
        Batch batch;
        std::unique_ptr<HttpPoster::Post> post;
        std::unique_ptr<RepeatingTimer> limit;
    };
    using Sendings = std::list<Sending>;

    Parameters defaultPayload() const;
    QString clientUser();
    QString userIdentifier();
    void sendCollected();
    void send(Batch batch);
    void finish(Sendings::iterator sending, const HttpPoster::Answer& answer);
    void putBack(Batch unsent);

    const Setup setup;
    const TelemetryOptions options;
    const QString sessionID;
    const Parameters everySignalsPayload;

    std::once_flag identified;
    QString hashedUser; ///< once identified

    std::mutex bufferLock; ///< guards the next two
    QString appID;
    Batch buffer;

    Sendings underWay; ///< more than one only when the program ends
    bool flushAgain = false;
    std::unique_ptr<RepeatingTimer> flushTimer;
};

} // namespace tessaline
