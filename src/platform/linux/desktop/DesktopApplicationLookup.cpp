#include "platform/linux/desktop/DesktopApplicationLookup.h"

#include <utility>

namespace tessaline {

DesktopApplicationLookup::DesktopApplicationLookup(DesktopEntries installed)
    : entries(std::move(installed)) {}

QStringList DesktopApplicationLookup::applicationPaths(const QString& bundleIdentifier) const {
    QStringList paths;
    for (const auto& found : entries.withIdentifier(bundleIdentifier))
        paths += found.applicationPath();
    return paths;
}

std::optional<QString>
DesktopApplicationLookup::workspaceApplicationPath(const QString& bundleIdentifier) const {
    const QStringList paths = applicationPaths(bundleIdentifier);
    return paths.isEmpty() ? std::nullopt : std::optional(paths.first());
}

} // namespace tessaline
