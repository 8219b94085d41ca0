#include "sources/obsidian/ObsidianLocator.h"

#include "platform/ApplicationLookup.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

std::optional<QString> locateObsidian(const ApplicationLookup& lookup, const QString& homeFolder,
                                      const std::function<bool(const QString& path)>& exists) {
    const auto identifier = u"md.obsidian"_s;
    const QStringList listed = lookup.applicationPaths(identifier);
    if (!listed.isEmpty()) return listed.first();
    for (const QString& place :
         {u"/Applications/Obsidian.app"_s, homeFolder + "/Applications/Obsidian.app"_L1,
          u"/opt/homebrew-cask/Caskroom/obsidian"_s})
        if (exists(place)) return place;
    return lookup.workspaceApplicationPath(identifier);
}

std::optional<QString> locateObsidian(const ApplicationLookup& lookup, const QString& homeFolder) {
    return locateObsidian(lookup, homeFolder,
                          [](const QString& path) { return QFileInfo::exists(path); });
}

} // namespace tessaline
