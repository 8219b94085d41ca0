#pragma once

#include "settings/Utf8.h"
#include "sources/ContentSourceError.h"

#include <QString>

#include <optional>
#include <variant>

namespace tessaline {

/// A text, or why there is none.
using ContentResult = std::variant<QString, ContentSourceError>;

/// Reads a whole UTF-8 file: `noContent` when there is none, `fileNotReadable` when it is anything
/// but a regular, readable file of valid UTF-8. Never waits for a writer. Any thread.
ContentResult readContentFile(const QString& path, ByteOrderMark mark);

/// The file's text, without a byte order mark, if the file can be read and holds another text than
/// `known`. Finding that it does not takes no more memory than the file.
std::optional<QString> readChangedContentFile(const QString& path, const QString& known);

} // namespace tessaline
