#pragma once

#include "settings/ChangeObservers.h"
#include "settings/PersistedSettings.h"
#include "settings/SourceMode.h"
#include "settings/SourceType.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tessaline {

template <typename Values>
class SettingsFile;

/// The user's choices. One instance is shared by reference with every part of the program. A change
/// is one call: it is brought within its limits, saved at once, and told to the observers.
class AppSettings {
public:
    /// Starts from the defaults and loads the configuration file over them: the one at
    /// `configPath`, if given, in place of the standard one.
    explicit AppSettings(const std::optional<QString>& configPath = std::nullopt);

    ~AppSettings();
    AppSettings(const AppSettings&) = delete;
    AppSettings& operator=(const AppSettings&) = delete;

    /// Reads the configuration file into this instance and repairs the resume speed. Writes the
    /// present values where there is no file. A file that cannot be read or decoded is reported on
    /// standard output, stays as it is, and changes nothing here; a copy of it is kept beside it,
    /// and the log tells where. Where none can be made, only changed values are saved over it.
    void loadSettings();

    /// Writes every persisted field, whole or not at all. A failure is reported on standard output.
    void save() const;

    const PersistedSettings& values() const { return current; }
    const QString& notePath() const { return current.notePath; }
    double fontSize() const { return current.fontSize; }
    double width() const { return current.width; }
    double height() const { return current.height; }
    double xOffset() const { return current.xOffset; }
    double scrollSpeed() const { return current.scrollSpeed; }
    double lastNonZeroScrollSpeed() const { return current.lastNonZeroScrollSpeed; }
    bool autoScrollEnabled() const { return current.autoScrollEnabled; }
    ScrollRate scrollRate() const { return current.scrollRate; }
    bool hasCompletedOnboarding() const { return current.hasCompletedOnboarding; }
    SourceType activeSourceType() const { return current.activeSourceType; }
    const auto& appleNotesConfig() const { return current.appleNotesConfig; }
    const auto& enabledSourceTypes() const { return current.enabledSourceTypes; }
    const auto& preferredDisplayID() const { return current.preferredDisplayID; }

    void setFontSize(double points);
    void setWidth(double points);
    void setHeight(double points);
    void setXOffset(double points);
    /// From 0 to the greatest speed. One above 0 is also the speed to resume with.
    void setScrollSpeed(double speed);
    /// Switching it on while the speed is 0 resumes with the last speed.
    void setAutoScrollEnabled(bool enabled);
    void setScrollRate(ScrollRate rate);
    void setHasCompletedOnboarding(bool completed);
    void setActiveSourceType(SourceType source);
    void setAppleNotesConfig(const std::optional<AppleNotesConfiguration>& note);
    void setPreferredDisplayID(std::optional<std::uint32_t> display);

    /// Switches a source on or off and saves. The clipboard cannot be switched off; switching the
    /// active source off makes the clipboard active.
    void setSourceEnabled(SourceType source, bool enabled);

    /// Several fields at once, for whoever has to write them together.
    void change(const std::function<void(PersistedSettings& values)>& edit);

    /// The enabled sources among those offered to the user, in the order they are offered.
    std::vector<SourceType> getEnabledSources() const;
    bool isSourceEnabled(SourceType source) const;

    using Observation = ChangeObservers<PersistedSettings>::Observation;

    /// Hears of changes once they are saved, with the values from before. It may outlive this.
    [[nodiscard]] Observation observe(ChangeObservers<PersistedSettings>::Observer observer);

    SourceMode sourceMode = SourceMode::file; ///< in memory only
    QString clipboardContent;                 ///< in memory only
    std::optional<QString> testConfigURL;     ///< path in place of the standard one; in memory only

private:
    QString configPath() const;
    void announce(const PersistedSettings& before);

    PersistedSettings current;
    ChangeObservers<PersistedSettings> observers;

    const std::unique_ptr<SettingsFile<PersistedSettings>> file;
};

} // namespace tessaline
