#include "platform/linux/desktop/ConnectorIdentity.h"

#include <QByteArray>
#include <QScreen>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

/// FNV-1a with 32 bits.
std::uint32_t hashOf(const QByteArray& bytes) {
    std::uint32_t hash = 0x811c9dc5U;
    for (const char byte : bytes) {
        hash ^= static_cast<unsigned char>(byte);
        hash *= 0x01000193U;
    }
    return hash;
}

/// Servers number their connectors with or without a hyphen: "eDP-1", "eDP1", "eDP".
bool isKind(const QString& connector, QLatin1StringView kind) {
    if (!connector.startsWith(kind, Qt::CaseInsensitive)) return false;
    const auto rest = QStringView(connector).mid(kind.size());
    return rest.isEmpty() || rest.front() == u'-' || rest.front().isDigit();
}

bool isBuiltIn(const QString& connector) {
    static constexpr std::array kinds{"eDP"_L1, "LVDS"_L1, "DSI"_L1};
    return std::any_of(kinds.begin(), kinds.end(),
                       [&](QLatin1StringView kind) { return isKind(connector, kind); });
}

} // namespace

ScreenIdentity connectorIdentity(const QString& connector, const QString& manufacturer,
                                 const QString& model, const QString& serialNumber) {
    // The separator cannot occur in the parts, so that moving text between them changes the hash.
    const QStringList parts{connector, manufacturer, model, serialNumber};
    const std::uint32_t hash = hashOf(parts.join(u'\0').toUtf8());
    return {hash == 0 ? 1 : hash, isBuiltIn(connector)};
}

ScreenIdentity identifyByConnector(const QScreen& screen) {
    return connectorIdentity(screen.name(), screen.manufacturer(), screen.model(),
                             screen.serialNumber());
}

} // namespace tessaline
