#include "platform/linux/desktop/DesktopEntries.h"

#include "settings/WholeFile.h"

#include <QDir>
#include <QDirIterator>

#include <set>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 entryLimit = qint64{1} << 20;

std::optional<DesktopEntry> readEntry(const QString& file) {
    const auto bytes = readWholeFile(file, nullptr, entryLimit);
    return bytes ? DesktopEntry::parse(*bytes) : std::nullopt;
}

/// Adds absolute paths only: relative ones are to be ignored.
void addFolders(QStringList& folders, const QString& colonSeparated) {
    for (const QString& folder : colonSeparated.split(u':', Qt::SkipEmptyParts)) {
        const QString clean = QDir::cleanPath(folder);
        if (clean.startsWith(u'/') && !folders.contains(clean)) folders += clean;
    }
}

QString orElse(const QString& value, const QString& standard) {
    return value.isEmpty() ? standard : value;
}

/// Whether a package would give its entry this name (without ".desktop") for that application.
bool isNamedAfter(const QString& entryId, const QString& bundleIdentifier) {
    const QString id = entryId.toLower();
    const QString identifier = bundleIdentifier.toLower();
    const QString name = identifier.section(u'.', -1);
    const bool isSnap = id == name + u'_' + name;
    const bool isAppImage = id.startsWith("appimagekit_"_L1) && id.endsWith(u'-' + name);
    return id == identifier || id.startsWith(identifier + u'.') || id == name || isSnap ||
           isAppImage;
}

} // namespace

DesktopEntries::DesktopEntries(QStringList dataFolders) : folders(std::move(dataFolders)) {}

DesktopEntries DesktopEntries::installed() {
    return DesktopEntries(
        standardFolders([](const char* name) { return qEnvironmentVariable(name); }));
}

QStringList DesktopEntries::standardFolders(const Environment& variable) {
    const QString home = QDir::homePath();
    QStringList folders;
    addFolders(folders, orElse(variable("XDG_DATA_HOME"), home + "/.local/share"_L1));
    addFolders(folders, orElse(variable("XDG_DATA_DIRS"), u"/usr/local/share:/usr/share"_s));
    addFolders(folders, home + "/.local/share/flatpak/exports/share"_L1);
    addFolders(folders, u"/var/lib/flatpak/exports/share:/var/lib/snapd/desktop"_s);
    return folders;
}

std::vector<DesktopEntries::Found>
DesktopEntries::withIdentifier(const QString& bundleIdentifier) const {
    return matching([&](const QString& id) { return isNamedAfter(id, bundleIdentifier); });
}

std::optional<DesktopEntries::Found> DesktopEntries::atPath(const QString& path) const {
    if (path.endsWith(".desktop"_L1)) {
        const auto entry = readEntry(path);
        return entry ? std::optional(Found{path, *entry}) : std::nullopt;
    }
    for (const Found& found : matching([](const QString&) { return true; }))
        if (found.entry.program() == path) return found;
    return std::nullopt;
}

std::vector<DesktopEntries::Found>
DesktopEntries::matching(const std::function<bool(const QString& id)>& accepts) const {
    std::vector<Found> all;
    std::set<QString> seen;
    for (const QString& folder : folders) {
        const QDir applications(folder + "/applications"_L1);
        QStringList files;
        QDirIterator entries(applications.path(), {u"*.desktop"_s}, QDir::Files,
                             QDirIterator::Subdirectories);
        while (entries.hasNext())
            files += entries.next();
        files.sort();
        for (const QString& file : files) {
            QString id = applications.relativeFilePath(file).chopped(8);
            id.replace(u'/', u'-');
            if (!accepts(id) || !seen.insert(id).second) continue;
            const auto entry = readEntry(file);
            if (entry && entry->isInstalled()) all.push_back({file, *entry});
        }
    }
    return all;
}

} // namespace tessaline
