#pragma once

#include "sources/ObsidianIntegration.h"
#include "sources/obsidian/PluginInstaller.h"
#include "sources/obsidian/VaultRegistry.h"

#include <QString>

namespace tessaline {

class ApplicationLookup;
class BundleInformation;
class FolderChooser;
class MainQueue;
class TaskRunner;

/// The Obsidian on this machine, as its files tell. Main thread only.
class InstalledObsidian final : public ObsidianIntegration {
public:
    /// All of it must outlive this. The plug-in's files are in the bundle's resources.
    struct Ports {
        const ApplicationLookup& applications;
        const BundleInformation& bundle;
        FolderChooser& chooser;
        MainQueue& mainQueue;
        TaskRunner& tasks;
    };

    InstalledObsidian(const QString& homeFolder, VaultRegistry registry, const Ports& ports);

    std::optional<QString> obsidianAppPath() const override;
    bool isObsidianPresent() const override;
    std::optional<QString> findObsidianVault() const override;
    bool isPluginInstalled() const override;
    bool isPluginEnabled() const override;
    void lookUpPlugin(std::function<void(PluginState)> deliver) const override;
    InstallResult installPlugin() override;

private:
    const QString homeFolder;
    const VaultRegistry registry;
    const Ports ports;
    const PluginInstaller installer;
};

} // namespace tessaline
