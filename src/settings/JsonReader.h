#pragma once

#include "settings/JsonValue.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tessaline {

/// Larger JSON files are refused. Far above any real one.
inline constexpr qint64 jsonFileLimit = qint64{16} << 20;

/// Reads a JSON text, whoever wrote it, in time and memory that grow with its length. None when it
/// is anything but one whole value in valid UTF-8, nests deeper than 512 levels or holds more than
/// a million values; `error`, if given, receives a one-line description.
///
/// A number beyond any double and a text with half of a surrogate pair are valid, but nobody can
/// use them: in their place is an array that holds an array. Any thread.
std::optional<JsonValue> parseJson(const QByteArray& bytes, QString* error = nullptr);

/// As above, and none when the value is no object.
std::optional<JsonValue> parseJsonObject(const QByteArray& bytes, QString* error = nullptr);

/// Reads the JSON file at `path`. As above, and none when it cannot be read or is larger than
/// `jsonFileLimit`.
std::optional<JsonValue> readJsonFile(const QString& path, QString* error = nullptr);

} // namespace tessaline
