#include "sources/obsidian/VaultRegistry.h"

#include "settings/JsonReader.h"

#include <QDir>

#include <algorithm>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename T>
T valueOr(const JsonValue* value, T standard) {
    const T* content = value ? value->as<T>() : nullptr;
    return content ? *content : standard;
}

std::optional<VaultInfo> decodeVault(const JsonValue& entry) {
    const JsonValue* path = entry.find(u"path");
    if (!path || !path->as<QString>()) return std::nullopt;
    return VaultInfo{*path->as<QString>(), valueOr(entry.find(u"ts"), 0.0),
                     valueOr(entry.find(u"open"), false)};
}

std::optional<std::vector<VaultInfo>> decodeRegistry(const JsonValue& registry) {
    const JsonValue* entries = registry.find(u"vaults");
    const auto* members = entries ? entries->as<JsonValue::Object>() : nullptr;
    if (!members) return std::nullopt;
    std::vector<VaultInfo> vaults;
    for (const auto& [identifier, entry] : *members)
        if (auto vault = decodeVault(entry)) vaults.push_back(*std::move(vault));
    return vaults;
}

bool wasUsedBefore(const VaultInfo& one, const VaultInfo& other) {
    return one.timestamp < other.timestamp;
}

} // namespace

std::optional<std::vector<VaultInfo>> parseVaultRegistry(const QByteArray& bytes) {
    const auto registry = parseJson(bytes);
    return registry ? decodeRegistry(*registry) : std::nullopt;
}

std::optional<QString> preferredVault(const std::vector<VaultInfo>& vaults) {
    if (vaults.empty()) return std::nullopt;
    const auto open = std::find_if(vaults.begin(), vaults.end(),
                                   [](const VaultInfo& vault) { return vault.isOpen; });
    if (open != vaults.end()) return open->path;
    return std::max_element(vaults.begin(), vaults.end(), wasUsedBefore)->path;
}

VaultRegistry::VaultRegistry(const QString& homeFolder, const QString& configFolder) {
    QStringList folders{homeFolder + "/Library/Application Support"_L1};
    if (QDir::isAbsolutePath(configFolder)) folders += configFolder;
    folders += homeFolder + "/.config"_L1;
    folders += homeFolder + "/.var/app/md.obsidian.Obsidian/config"_L1;
    folders += homeFolder + "/snap/obsidian/current/.config"_L1;
    for (const QString& folder : folders)
        places += folder + "/obsidian/obsidian.json"_L1;
}

std::optional<QString> VaultRegistry::findVault() const {
    for (const QString& place : places) {
        const auto registry = readJsonFile(place);
        const auto vaults = registry ? decodeRegistry(*registry) : std::nullopt;
        if (!vaults) continue;
        if (auto vault = preferredVault(*vaults)) return vault;
    }
    return std::nullopt;
}

} // namespace tessaline
