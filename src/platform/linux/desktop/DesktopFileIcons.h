#pragma once

#include "platform/FileIcons.h"
#include "platform/linux/desktop/DesktopEntries.h"

namespace tessaline {

/// Icons of applications as their desktop entries name them, and of other files by their kind.
/// Needs a QGuiApplication.
class DesktopFileIcons final : public FileIcons {
public:
    explicit DesktopFileIcons(DesktopEntries entries);

    QIcon iconForFile(const QString& path) const override;

private:
    QIcon iconNamed(const QString& name) const;

    DesktopEntries entries;
};

} // namespace tessaline
