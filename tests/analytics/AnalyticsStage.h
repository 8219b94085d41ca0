#pragma once

#include "analytics/Analytics.h"
#include "analytics/DecodedEvents.h"
#include "support/FakeBundleInformation.h"
#include "support/FakeEnvironmentProbe.h"
#include "support/FakeTaskRunner.h"
#include "support/FakeTimerMaker.h"
#include "support/TestFiles.h"
#include "support/TestPlatform.h"

#include <QTemporaryDir>
#include <QTimeZone>

#include <memory>
#include <utility>
#include <vector>

namespace tessaline {

/// The events in a history file; fails the test when it cannot be decoded.
inline std::vector<AnalyticsEvent> eventsIn(const QString& path) {
    return decoded(fileBytes(path));
}

/// The names of the events in a history file, in order.
inline QStringList namesIn(const QString& path) {
    QStringList names;
    for (const AnalyticsEvent& event : eventsIn(path))
        names += event.name;
    return names;
}

/// A recorder in surroundings that the test commands.
struct AnalyticsStage : TestPlatform {
    using Signal = std::pair<QString, Analytics::Properties>;

    std::unique_ptr<Analytics> makeRecorder() {
        return std::make_unique<Analytics>(Analytics::Setup{
            .platform = platform,
            .environment = environment,
            .signal =
                [this](const QString& name, const Analytics::Properties& parameters) {
                    sent.emplace_back(name, parameters);
                },
            .now = [this] { return now; },
            .system = {.name = QStringLiteral("Linux"),
                       .description = QStringLiteral("Example OS 12"),
                       .majorVersion = 12},
            .historyPath = path});
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("support/analytics.json"));
    QDateTime now{QDate(2026, 11, 20), QTime(21, 44, 30), QTimeZone::utc()};
    FakeEnvironmentProbe environment;
    std::vector<Signal> sent;
};

} // namespace tessaline
