#include "platform/linux/desktop/DesktopFileIcons.h"

#include <QDir>
#include <QFileInfo>
#include <QMimeDatabase>

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The pictures of an icon in all its sizes below one data folder.
QStringList pictures(const QString& dataFolder, const QString& name) {
    QStringList folders;
    const QString theme = dataFolder + "/icons/hicolor/"_L1;
    for (const QString& size : QDir(theme).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        folders += theme + size + "/apps/"_L1;
    folders += dataFolder + "/pixmaps/"_L1;
    QStringList files;
    for (const QString& folder : folders) {
        for (const QLatin1String ending : {".png"_L1, ".svg"_L1, ".xpm"_L1})
            if (const QString file = folder + name + ending; QFileInfo::exists(file)) files += file;
    }
    return files;
}

QIcon iconOfKind(const QString& path) {
    const QMimeType kind = QMimeDatabase().mimeTypeForFile(path);
    return QIcon::fromTheme(kind.iconName(), QIcon::fromTheme(kind.genericIconName()));
}

} // namespace

DesktopFileIcons::DesktopFileIcons(DesktopEntries installed) : entries(std::move(installed)) {}

QIcon DesktopFileIcons::iconForFile(const QString& path) const {
    if (!QFileInfo::exists(path)) return {};
    if (const auto found = entries.atPath(path)) {
        const QString& icon = found->entry.icon;
        return QFileInfo(icon).isAbsolute() ? QIcon(icon) : iconNamed(icon);
    }
    return iconOfKind(path);
}

QIcon DesktopFileIcons::iconNamed(const QString& name) const {
    if (name.isEmpty() || name.contains(u'/')) return {};
    QIcon icon = QIcon::fromTheme(name);
    if (!icon.availableSizes().isEmpty()) return icon;
    // The desktop's theme may know nothing of where Flatpak and Snap put their icons.
    QIcon own;
    for (const QString& folder : entries.dataFolders()) {
        for (const QString& file : pictures(folder, name))
            own.addFile(file);
    }
    return own.availableSizes().isEmpty() ? icon : own;
}

} // namespace tessaline
