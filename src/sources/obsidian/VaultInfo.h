#pragma once

#include <QString>

namespace tessaline {

/// What Obsidian remembers about one of the user's vaults.
struct VaultInfo {
    QString path;         ///< the vault's folder
    double timestamp = 0; ///< when it was used last, in milliseconds; 0 if that is unknown
    bool isOpen = false;

    bool operator==(const VaultInfo&) const = default;
};

} // namespace tessaline
