#pragma once

#include "sources/ObsidianIntegration.h"
#include "sources/obsidian/PluginInstaller.h"
#include "sources/obsidian/VaultRegistry.h"

#include <QString>

namespace tessaline {

struct Platform;

/// The Obsidian on this machine, as its files tell.
class InstalledObsidian final : public ObsidianIntegration {
public:
    /// Borrows the platform. The plug-in's files are in the bundle's resources.
    InstalledObsidian(const QString& homeFolder, VaultRegistry registry, const Platform& platform);

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
    const Platform& platform;
    const PluginInstaller installer;
};

} // namespace tessaline
