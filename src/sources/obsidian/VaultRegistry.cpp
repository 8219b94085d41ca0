#include "sources/obsidian/VaultRegistry.h"

#include "settings/WholeFile.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <string>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;
using nlohmann::ordered_json;

namespace {

/// Thousands of vaults. Looking keys up in an object that keeps its order costs the square of their
/// number, which a longer file could make felt.
constexpr qint64 registryLimit = qint64{256} << 10;

std::optional<VaultInfo> decodeVault(const ordered_json& entry) {
    if (!entry.is_object()) return std::nullopt;
    const auto path = entry.find("path");
    if (path == entry.end() || !path->is_string()) return std::nullopt;
    VaultInfo vault{QString::fromStdString(path->get_ref<const std::string&>())};
    const auto timestamp = entry.find("ts");
    if (timestamp != entry.end() && timestamp->is_number()) vault.timestamp = *timestamp;
    const auto open = entry.find("open");
    if (open != entry.end() && open->is_boolean()) vault.isOpen = *open;
    return vault;
}

bool wasUsedBefore(const VaultInfo& one, const VaultInfo& other) {
    return one.timestamp < other.timestamp;
}

} // namespace

std::optional<std::vector<VaultInfo>> parseVaultRegistry(const QByteArray& bytes) {
    const auto registry = ordered_json::parse(bytes.begin(), bytes.end(), nullptr, false);
    if (!registry.is_object()) return std::nullopt;
    const auto entries = registry.find("vaults");
    if (entries == registry.end() || !entries->is_object()) return std::nullopt;
    std::vector<VaultInfo> vaults;
    for (const ordered_json& entry : *entries)
        if (auto vault = decodeVault(entry)) vaults.push_back(*std::move(vault));
    return vaults;
}

std::optional<QString> preferredVault(const std::vector<VaultInfo>& vaults) {
    if (vaults.empty()) return std::nullopt;
    const auto open = std::find_if(vaults.begin(), vaults.end(),
                                   [](const VaultInfo& vault) { return vault.isOpen; });
    if (open != vaults.end()) return open->path;
    return std::max_element(vaults.begin(), vaults.end(), wasUsedBefore)->path;
}

VaultRegistry::VaultRegistry(const QString& homeFolder) {
    for (const QLatin1StringView folder : {
             "/Library/Application Support/obsidian"_L1,
             "/.config/obsidian"_L1,
             "/.var/app/md.obsidian.Obsidian/config/obsidian"_L1,
             "/snap/obsidian/current/.config/obsidian"_L1,
         })
        places += homeFolder + folder + "/obsidian.json"_L1;
}

std::optional<QString> VaultRegistry::findVault() const {
    for (const QString& place : places) {
        const auto bytes = readWholeFile(place, nullptr, registryLimit);
        if (!bytes) continue;
        const auto vaults = parseVaultRegistry(*bytes);
        if (!vaults) continue;
        if (auto vault = preferredVault(*vaults)) return vault;
    }
    return std::nullopt;
}

} // namespace tessaline
