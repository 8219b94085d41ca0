#include "settings/EnumerationCodec.h"

#include <optional>

namespace tessaline {

namespace {

template <typename Enumeration>
bool decodeText(const JsonValue& value, Enumeration& target,
                std::optional<Enumeration> (*fromRawValue)(QStringView)) {
    const auto* text = value.as<QString>();
    const auto result = text ? fromRawValue(*text) : std::nullopt;
    if (result) target = *result;
    return result.has_value();
}

} // namespace

JsonValue encode(SourceType source) {
    return {rawValue(source)};
}

JsonValue encode(SourceMode mode) {
    return {rawValue(mode)};
}

JsonValue encode(ScrollRate rate) {
    return {rawValue(rate)};
}

bool decode(const JsonValue& value, SourceType& source) {
    return decodeText(value, source, sourceTypeFromRawValue);
}

bool decode(const JsonValue& value, SourceMode& mode) {
    return decodeText(value, mode, sourceModeFromRawValue);
}

bool decode(const JsonValue& value, ScrollRate& rate) {
    return decodeText(value, rate, scrollRateFromRawValue);
}

} // namespace tessaline
