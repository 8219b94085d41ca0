#pragma once

#include <QIcon>

class QLabel;

namespace tessaline {

struct WindowPorts;

/// The Obsidian application's own icon, or a null icon where the application is not found or the
/// system has no icon for it. Main thread.
QIcon obsidianIcon(const WindowPorts& ports);

/// The same as a picture of this size, in points, or null.
QLabel* makeObsidianIcon(const WindowPorts& ports, int size);

} // namespace tessaline
