#include "sources/ContentFile.h"

#include "settings/TextFile.h"

#include <QFile>

namespace tessaline {

ContentResult readContentFile(const QString& path, ByteOrderMark mark) {
    if (!QFile::exists(path)) return ContentSourceError::noContent();
    auto text = readTextFile(path, mark);
    if (!text) return ContentSourceError::fileNotReadable(path);
    return *std::move(text);
}

} // namespace tessaline
