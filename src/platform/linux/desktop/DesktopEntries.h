#pragma once

#include "platform/linux/desktop/DesktopEntry.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace tessaline {

/// The desktop entries of the applications that are installed, read anew at each question.
class DesktopEntries {
public:
    struct Found {
        QString file; ///< the entry's path
        DesktopEntry entry;

        /// The application's program, or the entry's file where it has none of its own.
        QString applicationPath() const { return entry.program().value_or(file); }
    };

    /// Data folders, such as /usr/share, with the folder "applications" below them; the first one
    /// that has an entry of some name wins.
    explicit DesktopEntries(QStringList dataFolders);

    /// Those in the standard folders of the program's environment.
    static DesktopEntries installed();

    /// The user's and the system's data folders as the environment names them, and those of Flatpak
    /// and Snap.
    using Environment = std::function<QString(const char* name)>;
    static QStringList standardFolders(const Environment& variable);

    /// The installed applications with this bundle identifier. Packages name their entry after it,
    /// or after its last part alone.
    std::vector<Found> withIdentifier(const QString& bundleIdentifier) const;

    /// The application at a path that an entry's `applicationPath` may have.
    std::optional<Found> atPath(const QString& path) const;

    QStringList dataFolders() const { return folders; }

private:
    std::vector<Found> matching(const std::function<bool(const QString& id)>& accepts) const;

    QStringList folders;
};

} // namespace tessaline
