#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace tessaline {

/// What becomes of a byte order mark at the start of a text.
enum class ByteOrderMark { drop, keep };

/// Decodes a whole UTF-8 text; none when any of it is invalid. Any thread.
std::optional<QString> decodeUtf8(QByteArrayView bytes, ByteOrderMark mark);

} // namespace tessaline
