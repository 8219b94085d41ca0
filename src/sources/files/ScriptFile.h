#pragma once

#include "sources/files/DocumentText.h"

#include <QString>
#include <QStringList>

namespace tessaline {

/// Larger files are not opened by hand: nobody reads so long a script, and a drop may be a mistake.
inline constexpr qint64 scriptFileLimit = qint64{64} << 20;

/// Reads a script of the user's by its path from the root: text in one of the encodings of
/// `decodeScript`, or a document. Only regular files are opened, so that the call does not wait for
/// anybody; one that is too large or no text is refused from its size and its beginning. Any
/// thread.
ReadText readScriptFile(const QString& path, ProcessRunner& processes,
                        qint64 limit = scriptFileLimit);

/// The same for text alone.
ReadText readTextScript(const QString& path, qint64 limit);

/// Whether the file at the path is a document that has to be turned into text, which takes a while.
/// Opens it to look.
bool isDocumentFile(const QString& path);

/// The patterns of the names that scripts usually have.
QStringList scriptNamePatterns();

/// A file's name alone, and as messages have it: without the middle of a very long one.
QString shownFileName(const QString& path);
QString briefFileName(const QString& path);

} // namespace tessaline
