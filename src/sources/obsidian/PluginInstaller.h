#pragma once

#include "sources/ObsidianIntegration.h"

#include <QString>

#include <optional>

namespace tessaline {

class BundleInformation;
class FolderChooser;
class VaultRegistry;

/// Copies the companion plug-in from the program's resources into the user's vault and switches it
/// on there.
class PluginInstaller {
public:
    using Result = ObsidianIntegration::InstallResult;

    PluginInstaller(const VaultRegistry& registry, const BundleInformation& bundle,
                    FolderChooser& chooser);

    /// Asks the user for access where the vault refuses it, and then tries once more. A plug-in
    /// that cannot be switched on is installed all the same; standard output tells why.
    Result install() const;

private:
    bool requestVaultAccess(const QString& vault) const;

    const VaultRegistry& registry;
    const BundleInformation& bundle;
    FolderChooser& chooser;
};

} // namespace tessaline
