#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace tessaline {

// To the system a path is bytes, of which not all make UTF-8. As text, each byte that does not is a
// lone surrogate from U+DC80 to U+DCFF, which no valid text holds: the way back gives the same
// bytes. Qt's own classes for files do not know this. Any thread.

/// The text for a path of the system's.
QString pathText(QByteArrayView native);

/// The path of the system's for a text.
QByteArray nativePath(const QString& path);

/// Whether the path has bytes that make no UTF-8: nothing of Qt's can reach it then.
bool hasForeignBytes(const QString& path);

/// The path from the root; links and dots stay as they are.
QString absolutePath(const QString& path);

} // namespace tessaline
