#pragma once

#include <QIcon>

class QLabel;

namespace tessaline {

class FileIcons;
class ObsidianIntegration;

/// The Obsidian application's own icon, or a null icon where the application is not found or the
/// system has no icon for it.
QIcon obsidianIcon(const ObsidianIntegration& obsidian, const FileIcons& icons);

/// The same as a picture of this size, in points, or null.
QLabel* makeObsidianIcon(const ObsidianIntegration& obsidian, const FileIcons& icons, int size);

} // namespace tessaline
