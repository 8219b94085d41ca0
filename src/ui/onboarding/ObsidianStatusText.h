#pragma once

#include <QString>

namespace tessaline {

/// What the first-run window says about Obsidian. Pure functions.
struct ObsidianStatusText {
    bool appFound = false;
    bool vaultFound = false; ///< counts only with the application
    bool sourceEnabled = false;
    bool pluginInstalled = false;
    bool pluginEnabled = false; ///< in Obsidian; counts only when installed

    /// The status with everything taken into account.
    QString text() const;

    /// The same once application and vault were found.
    QString textWithVault() const;
};

} // namespace tessaline
