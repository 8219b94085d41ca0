#pragma once

#include "sources/ObsidianIntegration.h"

namespace tessaline {

/// An Obsidian in the state that the test wants.
class FakeObsidianIntegration final : public ObsidianIntegration {
public:
    std::optional<QString> obsidianAppPath() const override { return appPath; }

    std::optional<QString> findObsidianVault() const override {
        ++vaultSearches;
        return vault;
    }

    bool isPluginInstalled() const override { return pluginInstalled; }
    bool isPluginEnabled() const override { return pluginEnabled; }

    InstallResult installPlugin() override {
        ++installations;
        if (installResult.success) pluginInstalled = pluginEnabled = true;
        return installResult;
    }

    std::optional<QString> appPath;
    std::optional<QString> vault;
    bool pluginInstalled = false;
    bool pluginEnabled = false;
    InstallResult installResult{true, QStringLiteral("Installed.")};
    int installations = 0;
    mutable int vaultSearches = 0;
};

} // namespace tessaline
