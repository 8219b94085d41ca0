#pragma once

#include <QString>

namespace tessaline {

/// The system that the program runs on.
struct SystemDescription {
    QString name; ///< "macOS" or "Linux"
    QString
        description; ///< name and version as people write them, "Debian GNU/Linux 12 (bookworm)"
    int majorVersion = 0;
    int minorVersion = 0;
    int patchVersion = 0;

    /// This system. A Linux distribution's version is that of its release: "12" counts as 12.0.0,
    /// and one that has none, as rolling ones do, as 0.0.0. Any thread.
    static SystemDescription current();

    /// Always three numbers, as "14.2.0".
    QString version() const;

    bool operator==(const SystemDescription&) const = default;
};

} // namespace tessaline
