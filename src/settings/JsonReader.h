#pragma once

#include "settings/JsonValue.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <string>

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

/// Goes through a JSON text as it is read. Each function tells whether to go on.
class JsonVisitor {
public:
    virtual ~JsonVisitor() = default;

    virtual bool null() = 0;
    virtual bool boolean(bool value) = 0;
    virtual bool number(double value) = 0;
    virtual bool string(const std::string& value) = 0;
    virtual bool key(const std::string& name) = 0;
    virtual bool beginObject() = 0;
    virtual bool endObject() = 0;
    virtual bool beginArray() = 0;
    virtual bool endArray() = 0;
};

/// Shows a JSON text in valid UTF-8 to `visitor`, value by value, in memory that does not grow with
/// its length. False when the visitor does not go on, and when the text is anything but one whole
/// value: then `error` says where.
bool visitJson(const QByteArray& bytes, JsonVisitor& visitor, QString& error);

/// Reads the JSON file at `path`. As above, and none when it cannot be read or is larger than
/// `jsonFileLimit`.
std::optional<JsonValue> readJsonFile(const QString& path, QString* error = nullptr);

} // namespace tessaline
