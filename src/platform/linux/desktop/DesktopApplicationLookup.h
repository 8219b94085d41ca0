#pragma once

#include "platform/ApplicationLookup.h"
#include "platform/linux/desktop/DesktopEntries.h"

namespace tessaline {

/// Finds applications by their desktop entries. An application that is started through a launcher,
/// as those from Flatpak and Snap are, is where its entry is.
class DesktopApplicationLookup final : public ApplicationLookup {
public:
    explicit DesktopApplicationLookup(DesktopEntries entries);

    QStringList applicationPaths(const QString& bundleIdentifier) const override;
    std::optional<QString> workspaceApplicationPath(const QString& bundleIdentifier) const override;

    /// An AppImage, for one, has an entry only if the user made one, named as they liked.
    bool knowsEveryApplication() const override { return false; }

private:
    DesktopEntries entries;
};

} // namespace tessaline
