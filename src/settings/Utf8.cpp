#include "settings/Utf8.h"

#include <QStringDecoder>

namespace tessaline {

std::optional<QString> decodeUtf8(QByteArrayView bytes, ByteOrderMark mark) {
    // Stateless, so that a character cut off at the end counts as an error.
    auto flags = QStringDecoder::Flags(QStringDecoder::Flag::Stateless);
    if (mark == ByteOrderMark::keep) flags |= QStringDecoder::Flag::ConvertInitialBom;
    QStringDecoder decode(QStringDecoder::Utf8, flags);
    QString text = decode(bytes);
    if (decode.hasError()) return std::nullopt;
    return text;
}

} // namespace tessaline
