#pragma once

#include "settings/FilePieces.h"

#include <QString>

namespace tessaline {

/// Puts a file made of `pieces` in the place of the regular file at `path`, or where there is none
/// yet: first written beside it, then renamed. Symbolic links are followed. Returns why not, on one
/// line; empty on success. Any thread, any number of processes at once.
///
/// What a process that was killed on the way left beside the file is removed by the next call for
/// the same file, once it is ten minutes old and no other call can be at it any more.
QString replaceFile(const QString& path, const FilePieces& pieces);

} // namespace tessaline
