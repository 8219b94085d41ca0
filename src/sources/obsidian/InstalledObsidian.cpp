#include "sources/obsidian/InstalledObsidian.h"

#include "sources/obsidian/CommunityPlugins.h"
#include "sources/obsidian/CompanionPlugin.h"
#include "sources/obsidian/ObsidianLocator.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

InstalledObsidian::InstalledObsidian(const QString& home, const ApplicationLookup& applications,
                                     const BundleInformation& bundle, FolderChooser& chooser)
    : homeFolder(home)
    , lookup(applications)
    , registry(home)
    , installer(registry, bundle, chooser) {}

std::optional<QString> InstalledObsidian::obsidianAppPath() const {
    return locateObsidian(lookup, homeFolder);
}

std::optional<QString> InstalledObsidian::findObsidianVault() const {
    return registry.findVault();
}

bool InstalledObsidian::isPluginInstalled() const {
    const auto vault = findObsidianVault();
    return vault && QFileInfo::exists(companionPlugin::pluginFolder(*vault) + "/main.js"_L1);
}

bool InstalledObsidian::isPluginEnabled() const {
    const auto vault = findObsidianVault();
    return vault && CommunityPlugins(*vault).contain(companionPlugin::identifier());
}

ObsidianIntegration::InstallResult InstalledObsidian::installPlugin() {
    return installer.install();
}

} // namespace tessaline
