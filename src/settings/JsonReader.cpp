#include "settings/JsonReader.h"

#include "settings/JsonCursor.h"
#include "settings/WholeFile.h"

#include <cmath>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostValues = 1'000'000;

/// In the place of a value that is valid and that nobody can use.
JsonValue unusable() {
    return {JsonValue::Array{{JsonValue::Array()}}};
}

class ValueReader {
public:
    explicit ValueReader(JsonCursor& cursor) : json(cursor) {}

    JsonValue read() {
        if (++values > mostValues) json.refuse(u"The JSON holds too many values"_s);
        switch (json.kind()) {
        case JsonCursor::Kind::boolean:
            return {json.takeBoolean()};
        case JsonCursor::Kind::number:
            return number();
        case JsonCursor::Kind::text:
            return text();
        case JsonCursor::Kind::array:
            return array();
        case JsonCursor::Kind::object:
            return object();
        default:
            json.skip();
            return {};
        }
    }

private:
    JsonValue number() {
        const double value = json.takeNumber();
        return std::isinf(value) ? unusable() : JsonValue{value};
    }

    JsonValue text() {
        const JsonText text = json.takeText();
        return text.isUnicode() ? JsonValue{text.decoded()} : unusable();
    }

    JsonValue array() {
        JsonValue::Array elements;
        json.enter();
        while (json.nextElement())
            elements.push_back(read());
        return {std::move(elements)};
    }

    JsonValue object() {
        JsonValue::Object members;
        json.enter();
        while (const auto name = json.nextMember())
            members.push_back({name->decoded(), read()});
        return {std::move(members)};
    }

    JsonCursor& json;
    int values = 0;
};

} // namespace

std::optional<JsonValue> parseJson(const QByteArray& bytes, QString* error) {
    JsonCursor json(bytes);
    JsonValue value = ValueReader(json).read();
    if (!json.finish(error)) return std::nullopt;
    return value;
}

std::optional<JsonValue> parseJsonObject(const QByteArray& bytes, QString* error) {
    auto value = parseJson(bytes, error);
    if (!value || value->as<JsonValue::Object>()) return value;
    if (error) *error = u"The JSON is not an object"_s;
    return std::nullopt;
}

std::optional<JsonValue> readJsonFile(const QString& path, QString* error) {
    const auto bytes = readWholeFile(path, error, jsonFileLimit);
    return bytes ? parseJson(*bytes, error) : std::nullopt;
}

} // namespace tessaline
