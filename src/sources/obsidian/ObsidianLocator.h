#pragma once

#include <QString>

#include <optional>

namespace tessaline {

class ApplicationLookup;

/// Where the Obsidian application is installed: where the system's list of applications says, else
/// at a usual place, else where the workspace would start it from. Main thread only.
std::optional<QString> locateObsidian(const ApplicationLookup& lookup, const QString& homeFolder);

} // namespace tessaline
