#pragma once

#include "settings/FilePieces.h"

#include <QByteArray>
#include <QString>

#include <optional>

class QFile;

namespace tessaline {

/// Files that are larger than this many bytes are refused unless the caller names another limit.
inline constexpr qint64 defaultFileLimit = qint64{1} << 30;

/// Opens a regular file for reading. Anything else at `path` (a folder, a FIFO, a device) is never
/// opened, so the call does not block. Returns false on failure with a one-line description in
/// `error`. Any thread.
bool openRegularFile(const QString& path, QFile& file, QString* error = nullptr);

/// Reads all bytes of a regular file, opened as above. Returns none on failure or when the file is
/// larger than `limit` bytes, with a one-line description in `error`. Any thread.
std::optional<QByteArray> readWholeFile(const QString& path, QString* error = nullptr,
                                        qint64 limit = defaultFileLimit);

/// Replaces the file at `path` with `bytes`, whole or not at all: until the new file is complete,
/// also when the process is killed, the old one stays. Symbolic links are followed. In a folder
/// that is not writable an existing writable file is overwritten in place, which is not atomic.
/// The folder must exist, and the name be UTF-8. Returns false on failure with a one-line
/// description in `error`. Any thread.
bool writeWholeFile(const QString& path, const QByteArray& bytes, QString* error = nullptr);

/// The same with what would be too large as a whole.
bool writeWholeFile(const QString& path, const FilePieces& pieces, QString* error = nullptr);

} // namespace tessaline
