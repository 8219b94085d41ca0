#pragma once

#include "settings/AppleNotesConfiguration.h"
#include "settings/ScrollRate.h"
#include "settings/SourceType.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>
#include <set>

namespace tessaline {

/// The choices that the configuration file holds: a plain value. A new one holds the defaults.
struct PersistedSettings {
    static constexpr double maxScrollSpeed = 5.0;
    static constexpr double defaultResumeSpeed = 2.0;

    /// A file in the user's home folder.
    static QString defaultNotePath();

    QString notePath = defaultNotePath();
    double fontSize = 16.0;   ///< points
    double width = 450.0;     ///< points
    double height = 256.0;    ///< points
    double xOffset = 0.0;     ///< points from the screen's centre
    double scrollSpeed = 0.0; ///< 0 (stopped) to `maxScrollSpeed`
    double lastNonZeroScrollSpeed = defaultResumeSpeed;
    bool autoScrollEnabled = false;
    ScrollRate scrollRate = ScrollRate::medium;
    bool hasCompletedOnboarding = false;
    SourceType activeSourceType = SourceType::clipboard;
    std::optional<AppleNotesConfiguration> appleNotesConfig;
    std::set<SourceType> enabledSourceTypes{SourceType::clipboard};
    std::optional<QByteArray> obsidianBookmarkData;  ///< opaque
    std::optional<std::uint32_t> preferredDisplayID; ///< none: chosen automatically

    bool operator==(const PersistedSettings&) const = default;
};

} // namespace tessaline
