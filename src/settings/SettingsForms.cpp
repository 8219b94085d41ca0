#include "settings/SettingsForms.h"

#include "settings/JsonWriter.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace tessaline {

namespace {

template <typename T>
bool readAs(const JsonValue& value, T& target) {
    const T* content = value.as<T>();
    if (content) target = *content;
    return content;
}

} // namespace

bool read(const JsonValue& value, bool& target) {
    return readAs(value, target);
}

bool read(const JsonValue& value, double& target) {
    return readAs(value, target);
}

bool read(const JsonValue& value, std::uint32_t& target) {
    constexpr double greatest = std::numeric_limits<std::uint32_t>::max();
    double number = 0;
    if (!read(value, number) || number < 0 || number > greatest || number != std::floor(number))
        return false;
    target = static_cast<std::uint32_t>(number);
    return true;
}

bool read(const JsonValue& value, QString& target) {
    return readAs(value, target);
}

bool read(const JsonValue& value, QByteArray& target) {
    const auto* text = value.as<QString>();
    if (!text) return false;
    auto result =
        QByteArray::fromBase64Encoding(text->toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    // Qt lets missing padding pass.
    if (!result || text->size() % 4 != 0) return false;
    target = std::move(*result);
    return true;
}

bool read(const JsonValue& value, AppleNotesConfiguration& target) {
    const JsonValue* identifier = value.find(u"noteId");
    const JsonValue* name = value.find(u"noteName");
    return identifier && read(*identifier, target.noteId) && name && read(*name, target.noteName);
}

bool read(const JsonValue& value, std::set<SourceType>& target) {
    const auto* array = value.as<JsonValue::Array>();
    if (!array) return false;
    target.clear();
    return std::all_of(array->begin(), array->end(), [&target](const JsonValue& element) {
        SourceType source{};
        return decode(element, source) && (target.insert(source), true);
    });
}

bool write(JsonWriter& json, bool value) {
    json.boolean(value);
    return true;
}

bool write(JsonWriter& json, double value) {
    const bool isFinite = std::isfinite(value);
    if (isFinite) json.real(value);
    return isFinite;
}

bool write(JsonWriter& json, std::uint32_t value) {
    json.number(value);
    return true;
}

bool write(JsonWriter& json, const QString& value) {
    json.string(value);
    return true;
}

bool write(JsonWriter& json, const QByteArray& value) {
    json.string(QString::fromLatin1(value.toBase64()));
    return true;
}

bool write(JsonWriter& json, const AppleNotesConfiguration& value) {
    json.beginObject();
    json.key("noteId");
    json.string(value.noteId);
    json.key("noteName");
    json.string(value.noteName);
    json.endObject();
    return true;
}

bool write(JsonWriter& json, const std::set<SourceType>& value) {
    json.beginArray();
    for (const SourceType source : value)
        json.string(rawValue(source));
    json.endArray();
    return true;
}

bool write(JsonWriter& json, const JsonValue& value) {
    json.value(value);
    return true;
}

} // namespace tessaline
