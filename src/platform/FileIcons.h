#pragma once

#include <QIcon>

class QString;

namespace tessaline {

/// The icons that the desktop shows for files and applications.
class FileIcons {
public:
    virtual ~FileIcons() = default;

    /// The icon of the file or application at this path, or a null icon.
    virtual QIcon iconForFile(const QString& path) const = 0;
};

} // namespace tessaline
