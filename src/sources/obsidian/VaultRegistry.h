#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace tessaline {

/// What Obsidian remembers about one of the user's vaults.
struct VaultInfo {
    QString path;         ///< the vault's folder
    double timestamp = 0; ///< when it was used last, in milliseconds; 0 if that is unknown
    bool isOpen = false;

    bool operator==(const VaultInfo&) const = default;
};

/// The vaults that Obsidian's own file names, in the file's order; none when the bytes are anything
/// but a JSON object with a "vaults" object. Vaults without a path are left out. Any thread.
std::optional<std::vector<VaultInfo>> parseVaultRegistry(const QByteArray& bytes);

/// The folder of the first open vault, else of the one used last, if there is any.
std::optional<QString> preferredVault(const std::vector<VaultInfo>& vaults);

/// Obsidian's list of vaults, read anew at each question. Any thread.
class VaultRegistry {
public:
    /// Looks below these folders, in all places where an installation of Obsidian may keep its
    /// list: the first of them that names a vault counts. `configFolder` is the user's own choice
    /// of a folder for configurations; it counts if it is an absolute path.
    explicit VaultRegistry(const QString& homeFolder, const QString& configFolder = {});

    /// The vault that the user works with, if there is any.
    std::optional<QString> findVault() const;

private:
    QStringList places;
};

} // namespace tessaline
