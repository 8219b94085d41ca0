#pragma once

#include "settings/FilePieces.h"

#include <QString>

class QFileInfo;

namespace tessaline {

/// Puts a file made of `pieces` in the place of the regular file at `path`, or where there is none
/// yet: first written beside it, then renamed. Symbolic links are followed. Returns why not, on one
/// line; empty on success. Any thread, any number of processes at once.
///
/// What a process that was killed on the way left beside the file is removed by the next call for
/// the same file, once it is ten minutes old and no other call can be at it any more.
QString replaceFile(const QString& path, const FilePieces& pieces);

/// Makes a file of `pieces` where nothing has that name, with the permissions of `model` if that
/// exists. What is there already, a link too, is left alone. Returns why it cannot be made, on one
/// line; empty on success. On failure there is no file. Any thread.
QString createFile(const QString& path, const FilePieces& pieces, const QFileInfo& model);

} // namespace tessaline
