#pragma once

#include "sources/ObsidianIntegration.h"

#include <utility>
#include <vector>

namespace tessaline {

/// An Obsidian in the state that the test wants.
class FakeObsidianIntegration final : public ObsidianIntegration {
public:
    std::optional<QString> obsidianAppPath() const override { return appPath; }

    bool isObsidianPresent() const override {
        return appPath.has_value() || (isProvenByVault && vault.has_value());
    }

    std::optional<QString> findObsidianVault() const override {
        ++vaultSearches;
        return vault;
    }

    bool isPluginInstalled() const override { return pluginInstalled; }
    bool isPluginEnabled() const override { return pluginEnabled; }

    void lookUpPlugin(std::function<void(PluginState)> deliver) const override {
        lookUps.emplace_back(PluginState{pluginInstalled, pluginEnabled}, std::move(deliver));
    }

    /// Delivers what was looked up, as it was then.
    void finishLookUps() {
        for (const auto& [state, deliver] : std::exchange(lookUps, {}))
            deliver(state);
    }

    InstallResult installPlugin() override {
        ++installations;
        if (installResult.success) pluginInstalled = pluginEnabled = true;
        return installResult;
    }

    std::optional<QString> appPath;
    std::optional<QString> vault;
    bool isProvenByVault = false;
    bool pluginInstalled = false;
    bool pluginEnabled = false;
    InstallResult installResult{true, QStringLiteral("Installed.")};
    int installations = 0;
    mutable int vaultSearches = 0;
    mutable std::vector<std::pair<PluginState, std::function<void(PluginState)>>> lookUps;
};

} // namespace tessaline
