#pragma once

#include <QString>

namespace tessaline {

/// The list of the plug-ins that are switched on in a vault. Obsidian owns it: it is changed only
/// where it has to be, and never when it is not the array of strings that Obsidian writes. Any
/// thread.
class CommunityPlugins {
public:
    explicit CommunityPlugins(const QString& vault);

    /// Whether the list can be read and names this plug-in.
    bool contain(const QString& identifier) const;

    /// Puts a plug-in at the list's end, and makes the list if there is none. A list that names the
    /// plug-in already keeps every byte. Returns false on failure, which leaves the list as it was,
    /// with a one-line description in `error`.
    bool enable(const QString& identifier, QString* error) const;

private:
    QString path;
};

} // namespace tessaline
