#pragma once

#include "settings/AppleNotesConfiguration.h"
#include "settings/EnumerationCodec.h"
#include "settings/JsonValue.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>
#include <set>

namespace tessaline {

class JsonWriter;

// How a value of each type stands in a settings file. `read` takes the one form of JSON value that
// its target accepts, and tells whether the value had that form. `write` tells whether JSON has a
// form for the value: a number that is not finite has none.

bool read(const JsonValue& value, bool& target);
bool read(const JsonValue& value, double& target);
bool read(const JsonValue& value, std::uint32_t& target);
bool read(const JsonValue& value, QString& target);
bool read(const JsonValue& value, QByteArray& target); ///< as base64
bool read(const JsonValue& value, AppleNotesConfiguration& target);

bool write(JsonWriter& json, bool value);
bool write(JsonWriter& json, double value);
bool write(JsonWriter& json, std::uint32_t value);
bool write(JsonWriter& json, const QString& value);
bool write(JsonWriter& json, const QByteArray& value);
bool write(JsonWriter& json, const AppleNotesConfiguration& value);
bool write(JsonWriter& json, const std::set<SourceType>& value);
bool write(JsonWriter& json, const JsonValue& value);

/// An enumeration, as its raw string.
template <typename T>
auto read(const JsonValue& value, T& target) -> decltype(decode(value, target)) {
    return decode(value, target);
}

template <typename T>
auto write(JsonWriter& json, T value) -> decltype(write(json, encode(value))) {
    return write(json, encode(value));
}

/// A set, as an array.
bool read(const JsonValue& value, std::set<SourceType>& target);

template <typename T>
bool read(const JsonValue& value, std::optional<T>& target) {
    return read(value, target.emplace());
}

/// There is one: whoever writes asks first whether it is absent.
template <typename T>
bool write(JsonWriter& json, const std::optional<T>& value) {
    return write(json, *value);
}

template <typename T>
bool isAbsent(const T&) {
    return false;
}

template <typename T>
bool isAbsent(const std::optional<T>& value) {
    return !value;
}

} // namespace tessaline
