#include "sources/obsidian/InstalledObsidian.h"

#include "platform/ApplicationLookup.h"
#include "platform/Platform.h"
#include "platform/RunThenPost.h"
#include "sources/obsidian/CommunityPlugins.h"
#include "sources/obsidian/CompanionPlugin.h"
#include "sources/obsidian/ObsidianLocator.h"

#include <QFileInfo>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

namespace {

bool isInstalledIn(const QString& vault) {
    return QFileInfo::exists(companionPlugin::pluginFolder(vault) + "/main.js"_L1);
}

bool isEnabledIn(const QString& vault) {
    return CommunityPlugins(vault).contain(companionPlugin::identifier());
}

} // namespace

InstalledObsidian::InstalledObsidian(const QString& home, VaultRegistry vaults,
                                     const Platform& borrowed)
    : homeFolder(home)
    , registry(std::move(vaults))
    , platform(borrowed)
    , installer(registry, *platform.bundle, *platform.folderChooser) {}

std::optional<QString> InstalledObsidian::obsidianAppPath() const {
    return locateObsidian(*platform.applications, homeFolder);
}

bool InstalledObsidian::isObsidianPresent() const {
    if (obsidianAppPath()) return true;
    if (platform.applications->knowsEveryApplication()) return false;
    const auto vault = findObsidianVault();
    return vault && QFileInfo(*vault).isDir();
}

std::optional<QString> InstalledObsidian::findObsidianVault() const {
    return registry.findVault();
}

bool InstalledObsidian::isPluginInstalled() const {
    const auto vault = findObsidianVault();
    return vault && isInstalledIn(*vault);
}

bool InstalledObsidian::isPluginEnabled() const {
    const auto vault = findObsidianVault();
    return vault && isEnabledIn(*vault);
}

void InstalledObsidian::lookUpPlugin(std::function<void(PluginState)> deliver) const {
    const auto lookUp = [registry = registry] {
        const auto vault = registry.findVault();
        return vault ? PluginState{isInstalledIn(*vault), isEnabledIn(*vault)} : PluginState();
    };
    runThenPost(*platform.queryTasks, *platform.mainQueue, lookUp, std::move(deliver));
}

ObsidianIntegration::InstallResult InstalledObsidian::installPlugin() {
    return installer.install();
}

} // namespace tessaline
