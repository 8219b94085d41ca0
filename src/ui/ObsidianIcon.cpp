#include "ui/ObsidianIcon.h"

#include "platform/FileIcons.h"
#include "sources/ObsidianIntegration.h"
#include "ui/WindowPorts.h"
#include "ui/controls/IconImage.h"

namespace tessaline {

QIcon obsidianIcon(const WindowPorts& ports) {
    const auto path = ports.obsidian.obsidianAppPath();
    return path ? ports.icons.iconForFile(*path) : QIcon();
}

QLabel* makeObsidianIcon(const WindowPorts& ports, int size) {
    const QIcon icon = obsidianIcon(ports);
    return icon.isNull() ? nullptr : new IconImage(icon, size);
}

} // namespace tessaline
