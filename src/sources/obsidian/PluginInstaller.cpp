#include "sources/obsidian/PluginInstaller.h"

#include "platform/BundleInformation.h"
#include "platform/FolderChooser.h"
#include "sources/obsidian/CommunityPlugins.h"
#include "sources/obsidian/CompanionPlugin.h"
#include "sources/obsidian/FileCopy.h"
#include "sources/obsidian/VaultRegistry.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

using Result = PluginInstaller::Result;

void enableOrWarn(const QString& vault) {
    QString error;
    if (CommunityPlugins(vault).enable(companionPlugin::identifier(), &error)) return;
    const QString warning = "Warning: Could not enable plugin in config: "_L1 + error + u'\n';
    std::fputs(warning.toUtf8().constData(), stdout);
    std::fflush(stdout);
}

Result installed(const QString& vault) {
    return {true, "Plugin installed in \""_L1 + QDir(vault).dirName() +
                      "\".\nRestart Obsidian to activate it."_L1};
}

/// One attempt to install. None when another one may do better, with the reason in `error`.
std::optional<Result> attempt(const QString& source, const QString& vault, QString* error) {
    const QString folder = companionPlugin::pluginFolder(vault);
    if (!createFolders(folder, error)) return std::nullopt;
    for (const QString& name : companionPlugin::fileNames()) {
        const QString file = source + u'/' + name;
        if (!QFileInfo::exists(file)) return Result{false, "Source file not found: "_L1 + name};
        if (!replaceWithCopy(file, folder + u'/' + name, error)) return std::nullopt;
    }
    enableOrWarn(vault);
    return installed(vault);
}

} // namespace

PluginInstaller::PluginInstaller(const VaultRegistry& vaultRegistry,
                                 const BundleInformation& bundleInformation,
                                 FolderChooser& folderChooser)
    : registry(vaultRegistry), bundle(bundleInformation), chooser(folderChooser) {}

Result PluginInstaller::install() const {
    const auto resources = bundle.resourceFolder();
    if (!resources) return {false, u"Could not find app resources."_s};
    const QString source = *resources + "/ObsidianPlugin"_L1;
    if (!QFileInfo::exists(source)) return {false, u"Plugin source not found."_s};
    const auto vault = registry.findVault();
    if (!vault) {
        return {false, u"Could not find an Obsidian vault. Make sure Obsidian is installed and has "
                       "at least one vault."_s};
    }
    const bool isWritable = QFileInfo(companionPlugin::settingsFolder(*vault)).isWritable();
    if (!isWritable && !requestVaultAccess(*vault)) {
        return {false, u"Tessaline needs access to your Obsidian vault to install the plugin. "
                       "Please try again and select the vault folder when prompted."_s};
    }
    QString error;
    if (const auto result = attempt(source, *vault, &error)) return *result;
    if (requestVaultAccess(*vault)) {
        if (const auto result = attempt(source, *vault, &error)) return *result;
    }
    return {false, "Failed to install plugin: "_L1 + error};
}

bool PluginInstaller::requestVaultAccess(const QString& vault) const {
    // Which folder is chosen does not matter: choosing it grants the access.
    return chooser
        .chooseFolder({u"Grant Access to Obsidian Vault"_s,
                       u"Tessaline needs access to your Obsidian vault to install the plugin.\n"
                       "Please select your vault folder."_s,
                       vault})
        .has_value();
}

} // namespace tessaline
