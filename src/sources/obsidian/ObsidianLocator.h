#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace tessaline {

class ApplicationLookup;

/// Where the Obsidian application is installed: where the system's list of applications says, else
/// at a usual place where something exists, else where the workspace would start it from.
std::optional<QString> locateObsidian(const ApplicationLookup& lookup, const QString& homeFolder,
                                      const std::function<bool(const QString& path)>& exists);

/// The same on this machine's disk.
std::optional<QString> locateObsidian(const ApplicationLookup& lookup, const QString& homeFolder);

} // namespace tessaline
