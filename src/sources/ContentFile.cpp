#include "sources/ContentFile.h"

#include "settings/WholeFile.h"

#include <QFile>

namespace tessaline {

ContentResult readContentFile(const QString& path, ByteOrderMark mark) {
    if (!QFile::exists(path)) return ContentSourceError::noContent();
    const auto bytes = readWholeFile(path);
    if (!bytes) return ContentSourceError::fileNotReadable(path);
    auto text = decodeUtf8(*bytes, mark);
    if (!text) return ContentSourceError::fileNotReadable(path);
    return *std::move(text);
}

} // namespace tessaline
