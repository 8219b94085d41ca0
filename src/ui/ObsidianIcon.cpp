#include "ui/ObsidianIcon.h"

#include "controls/IconImage.h"
#include "platform/FileIcons.h"
#include "sources/ObsidianIntegration.h"

namespace tessaline {

QIcon obsidianIcon(const ObsidianIntegration& obsidian, const FileIcons& icons) {
    const auto path = obsidian.obsidianAppPath();
    return path ? icons.iconForFile(*path) : QIcon();
}

QLabel* makeObsidianIcon(const ObsidianIntegration& obsidian, const FileIcons& icons, int size) {
    const QIcon icon = obsidianIcon(obsidian, icons);
    return icon.isNull() ? nullptr : new IconImage(icon, size);
}

} // namespace tessaline
