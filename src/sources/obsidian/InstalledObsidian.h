#pragma once

#include "sources/ObsidianIntegration.h"
#include "sources/obsidian/PluginInstaller.h"
#include "sources/obsidian/VaultRegistry.h"

#include <QString>

namespace tessaline {

class ApplicationLookup;
class BundleInformation;
class FolderChooser;

/// The Obsidian on this machine, as its files tell. Main thread only.
class InstalledObsidian final : public ObsidianIntegration {
public:
    /// What is borrowed must outlive this. The plug-in's files are in the bundle's resources.
    InstalledObsidian(const QString& homeFolder, const ApplicationLookup& lookup,
                      const BundleInformation& bundle, FolderChooser& chooser);

    std::optional<QString> obsidianAppPath() const override;
    std::optional<QString> findObsidianVault() const override;
    bool isPluginInstalled() const override;
    bool isPluginEnabled() const override;
    InstallResult installPlugin() override;

private:
    const QString homeFolder;
    const ApplicationLookup& lookup;
    const VaultRegistry registry;
    const PluginInstaller installer;
};

} // namespace tessaline
