#include "FuzzFailure.h"

#include "sources/obsidian/VaultRegistry.h"

#include <algorithm>
#include <cmath>

using namespace tessaline;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto vaults = parseVaultRegistry(bytes);
    if (!vaults) return 0;
    const QString text = QString::fromLatin1(bytes);
    for (const VaultInfo& vault : *vaults)
        if (!std::isfinite(vault.timestamp)) reportFuzzFailure("a time that is no number", text);
    const auto chosen = preferredVault(*vaults);
    if (chosen.has_value() == vaults->empty()) reportFuzzFailure("no choice, or one of none", text);
    if (!chosen) return 0;
    const auto isOpen = [](const VaultInfo& vault) { return vault.isOpen; };
    const bool someOpen = std::any_of(vaults->begin(), vaults->end(), isOpen);
    const bool isRight = std::any_of(vaults->begin(), vaults->end(), [&](const VaultInfo& vault) {
        return vault.path == *chosen && vault.isOpen == someOpen;
    });
    if (!isRight) reportFuzzFailure("the wrong vault", text);
    return 0;
}
