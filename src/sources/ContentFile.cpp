#include "sources/ContentFile.h"

#include "settings/TextFile.h"
#include "settings/WholeFile.h"

#include <QAnyStringView>
#include <QByteArrayView>
#include <QFile>

namespace tessaline {

ContentResult readContentFile(const QString& path, ByteOrderMark mark) {
    if (!QFile::exists(path)) return ContentSourceError::noContent();
    auto text = readTextFile(path, mark);
    if (!text) return ContentSourceError::fileNotReadable(path);
    return *std::move(text);
}

std::optional<QString> readChangedContentFile(const QString& path, const QString& known) {
    constexpr QByteArrayView mark("\xEF\xBB\xBF");
    const auto bytes = readWholeFile(path);
    if (!bytes) return std::nullopt;
    const QByteArrayView marked(*bytes);
    const QUtf8StringView text(marked.sliced(marked.startsWith(mark) ? mark.size() : 0));
    if (QAnyStringView::equal(text, known)) return std::nullopt;
    return decodeUtf8(*bytes, ByteOrderMark::drop);
}

} // namespace tessaline
