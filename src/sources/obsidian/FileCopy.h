#pragma once

#include <QString>

namespace tessaline {

/// Creates a folder and those above it. Returns false on failure, with its path and the system's
/// text on one line in `error`. Any thread.
bool createFolders(const QString& path, QString* error);

/// Puts a copy of the file `source` in the place of `target`, whole or not at all: on failure the
/// old target stays. A symbolic link at `target` is replaced itself, what it leads to is left
/// alone; so is a folder, which is a failure. Returns false on failure, with a one-line description
/// in `error` that names the file which could not be read or replaced. Any thread.
bool replaceWithCopy(const QString& source, const QString& target, QString* error);

} // namespace tessaline
