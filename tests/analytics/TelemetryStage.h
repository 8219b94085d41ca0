#pragma once

#include "analytics/TelemetryDeckClient.h"
#include "support/FakeBundleInformation.h"
#include "support/FakeTimerMaker.h"
#include "support/FakeUserDefaults.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <memory>

namespace tessaline {

/// The types of the signals in a batch, in order.
inline QStringList typesIn(const QByteArray& batch) {
    QStringList types;
    for (const QJsonValue signal : QJsonDocument::fromJson(batch).array())
        types += signal[QStringLiteral("type")].toString();
    return types;
}

/// A client in surroundings that the test commands.
struct TelemetryStage {
    std::unique_ptr<TelemetryDeckClient> makeClient(HttpPoster& http,
                                                    const TelemetryOptions& options = {}) {
        return std::make_unique<TelemetryDeckClient>(
            TelemetryDeckClient::Ports{.timers = timers,
                                       .http = http,
                                       .defaults = defaults,
                                       .bundle = bundle,
                                       .now = [this] { return now; },
                                       .system = {.name = QStringLiteral("Linux"),
                                                  .description = QStringLiteral("Example OS 12"),
                                                  .majorVersion = 12,
                                                  .minorVersion = 4}},
            options);
    }

    QDateTime now{QDate(2026, 11, 20), QTime(21, 44, 30, 250), Qt::UTC};
    FakeTimerMaker timers;
    FakeUserDefaults defaults;
    FakeBundleInformation bundle;
};

} // namespace tessaline
