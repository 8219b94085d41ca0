#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace tessaline {

/// What the program can tell about the user's Obsidian and the companion plug-in, and the plug-in's
/// installation. Everything is looked up anew at each call.
class ObsidianIntegration {
public:
    /// What came of an installation, with a text for the user.
    struct InstallResult {
        bool success = false;
        QString message;

        bool operator==(const InstallResult&) const = default;
    };

    /// What can be said of the plug-in in the user's vault.
    struct PluginState {
        bool installed = false;
        bool enabled = false; ///< the vault's list of community plug-ins names it

        bool operator==(const PluginState&) const = default;
    };

    virtual ~ObsidianIntegration() = default;

    /// Where the application is, if it is installed.
    virtual std::optional<QString> obsidianAppPath() const = 0;

    /// Whether there is an Obsidian. Where an application may be installed without being found, a
    /// vault that exists is proof enough.
    virtual bool isObsidianPresent() const = 0;

    /// The folder of the vault that is open, else of the one used last, if there is any.
    virtual std::optional<QString> findObsidianVault() const = 0;

    /// Whether the plug-in is in that vault.
    virtual bool isPluginInstalled() const = 0;

    /// Whether that vault's list of community plug-ins names it.
    virtual bool isPluginEnabled() const = 0;

    /// Looks both up in the background. `deliver` is called later, on the main thread.
    virtual void lookUpPlugin(std::function<void(PluginState)> deliver) const = 0;

    /// Copies the plug-in into the vault and enables it; may ask the user for access. Never throws.
    virtual InstallResult installPlugin() = 0;
};

} // namespace tessaline
