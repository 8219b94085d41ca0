#pragma once

#include "analytics/TelemetryDeckClient.h"
#include "support/FakeBundleInformation.h"
#include "support/FakeTimerMaker.h"
#include "support/FakeUserDefaults.h"
#include "support/TestPlatform.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QTimeZone>

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
struct TelemetryStage : TestPlatform {
    std::unique_ptr<TelemetryDeckClient> makeClient(HttpPoster& poster,
                                                    const TelemetryOptions& options = {}) {
        platform.http = std::make_unique<BorrowedPoster>(poster);
        return std::make_unique<TelemetryDeckClient>(
            TelemetryDeckClient::Setup{.platform = platform,
                                       .now = [this] { return now; },
                                       .system = {.name = QStringLiteral("Linux"),
                                                  .description = QStringLiteral("Example OS 12"),
                                                  .majorVersion = 12,
                                                  .minorVersion = 4}},
            options);
    }

    /// Posts by one that is a test's own.
    class BorrowedPoster final : public HttpPoster {
    public:
        explicit BorrowedPoster(HttpPoster& borrowed) : poster(borrowed) {}
        std::unique_ptr<Post> post(const QUrl& address, const QByteArray& body,
                                   Handler handler) override {
            return poster.post(address, body, std::move(handler));
        }

    private:
        HttpPoster& poster;
    };

    QDateTime now{QDate(2026, 11, 20), QTime(21, 44, 30, 250), QTimeZone::utc()};
};

} // namespace tessaline
