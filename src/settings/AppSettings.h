#pragma once

#include "settings/AppleNotesConfiguration.h"
#include "settings/ScrollRate.h"
#include "settings/SourceMode.h"
#include "settings/SourceType.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>
#include <set>
#include <vector>

namespace tessaline {

/// The user's choices. One instance is shared by reference with every part of the program; whoever
/// changes a field calls `save` at once. Main thread only.
class AppSettings {
public:
    static constexpr double maxScrollSpeed = 5.0;
    static constexpr double defaultResumeSpeed = 2.0;

    /// Starts from the defaults and loads the configuration file over them.
    AppSettings();

    /// As above, with the file at `testConfigURL` in place of the standard one.
    explicit AppSettings(const QString& testConfigURL);

    /// Reads the configuration file into this instance, repairing speeds. Writes the defaults where
    /// there is no file. A file that cannot be read or decoded is reported on standard output,
    /// stays as it is, and changes nothing here.
    void loadSettings();

    /// Writes every persisted field, whole or not at all. A failure is reported on standard output.
    void save();

    /// Switches a source on or off and saves. The clipboard cannot be switched off; switching the
    /// active source off makes the clipboard active.
    void setSourceEnabled(SourceType source, bool enabled);

    /// The enabled sources among those offered to the user, in the order they are offered.
    std::vector<SourceType> getEnabledSources() const;

    QString notePath;
    double fontSize = 16.0;             ///< points
    double width = 450.0;               ///< points
    double height = 256.0;              ///< points
    double xOffset = 0.0;               ///< points from the screen's centre
    double scrollSpeed = 0.0;           ///< 0 (stopped) to 5.0
    double lastNonZeroScrollSpeed = defaultResumeSpeed;
    bool autoScrollEnabled = false;
    ScrollRate scrollRate = ScrollRate::medium;
    bool hasCompletedOnboarding = false;
    SourceType activeSourceType = SourceType::clipboard;
    std::optional<AppleNotesConfiguration> appleNotesConfig;
    std::set<SourceType> enabledSourceTypes{SourceType::clipboard};
    std::optional<QByteArray> obsidianBookmarkData; ///< opaque
    std::optional<std::uint32_t> preferredDisplayID; ///< none: chosen automatically

    SourceMode sourceMode = SourceMode::file; ///< in memory only
    QString clipboardContent;                 ///< in memory only
    std::optional<QString> testConfigURL;     ///< in memory only; replaces the standard location

private:
    QString configPath() const;
};

} // namespace tessaline
