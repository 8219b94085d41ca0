#pragma once

#include "settings/PersistedSettings.h"
#include "settings/SourceMode.h"
#include "settings/SourceType.h"

#include <QString>

#include <optional>
#include <vector>

namespace tessaline {

/// The user's choices. One instance is shared by reference with every part of the program; whoever
/// changes a field calls `save` at once. Main thread only.
class AppSettings : public PersistedSettings {
public:
    /// Starts from the defaults and loads the configuration file over them.
    AppSettings();

    /// As above, with the file at `configPath` in place of the standard one.
    explicit AppSettings(const QString& configPath);

    AppSettings(const AppSettings&) = delete;
    AppSettings& operator=(const AppSettings&) = delete;

    /// Reads the configuration file into this instance and repairs the resume speed. Writes the
    /// present values where there is no file. A file that cannot be read or decoded is reported on
    /// standard output, stays as it is, and changes nothing here; a copy of it is kept beside it,
    /// and the log tells where. Where none can be made, only changed values are saved over it.
    void loadSettings();

    /// Writes every persisted field, whole or not at all. A failure is reported on standard output.
    void save() const;

    /// Switches a source on or off and saves. The clipboard cannot be switched off; switching the
    /// active source off makes the clipboard active.
    void setSourceEnabled(SourceType source, bool enabled);

    /// The enabled sources among those offered to the user, in the order they are offered.
    std::vector<SourceType> getEnabledSources() const;

    SourceMode sourceMode = SourceMode::file; ///< in memory only
    QString clipboardContent;                 ///< in memory only
    std::optional<QString> testConfigURL;     ///< path in place of the standard one; in memory only

private:
    QString configPath() const;

    /// What was in memory when a file could be neither used nor copied.
    mutable std::optional<PersistedSettings> unwritten;
};

} // namespace tessaline
