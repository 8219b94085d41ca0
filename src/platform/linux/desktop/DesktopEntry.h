#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace tessaline {

/// What an application's desktop entry says, as far as it concerns us.
struct DesktopEntry {
    QString command;     ///< the Exec line, unescaped once but still quoted
    QString icon;        ///< a name of the icon theme's, or a path
    QString tryExec;     ///< the program without which the application counts as absent
    bool hidden = false; ///< the entry says that the application was removed

    /// Reads an entry; none when it is not that of an application.
    static std::optional<DesktopEntry> parse(const QByteArray& bytes);

    /// The application's own program as a path: what the command starts, unless that is a launcher
    /// such as "env" or "flatpak", to which the application is but an argument. None when it is not
    /// installed either.
    std::optional<QString> program() const;

    /// Whether the programs that the entry names are there.
    bool isInstalled() const;

    bool operator==(const DesktopEntry&) const = default;
};

} // namespace tessaline
