#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace tessaline {

/// The text that the bytes of a file stand for: UTF-8 or UTF-16, with or without a byte order mark,
/// else Windows-1252, which holds Latin-1. None when they look like no text at all. Any thread.
std::optional<QString> decodeScript(QByteArrayView bytes);

/// Whether what a file begins with rules out that it is a text, whatever follows. Any thread.
bool isBinary(QByteArrayView beginning);

} // namespace tessaline
