#include "settings/TextFile.h"

#include "settings/WholeFile.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

std::optional<QString> readTextFile(const QString& path, ByteOrderMark mark, QString* error) {
    const auto bytes = readWholeFile(path, error);
    if (!bytes) return std::nullopt;
    auto text = decodeUtf8(*bytes, mark);
    if (!text && error) *error = u"Not valid UTF-8 text"_s;
    return text;
}

} // namespace tessaline
