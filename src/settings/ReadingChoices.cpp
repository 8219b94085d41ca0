#include "settings/ReadingChoices.h"

#include <algorithm>

namespace tessaline {

namespace {

template <typename Choices, typename T>
QString rawValueIn(const Choices& choices, T value) {
    const auto choice = std::find_if(choices.begin(), choices.end(),
                                     [value](const auto& each) { return each.value == value; });
    return QString::fromUtf16(choice->raw);
}

template <typename Choices, typename T>
bool decodeIn(const Choices& choices, const JsonValue& json, T& target) {
    const auto* text = json.as<QString>();
    if (!text) return false;
    const auto choice = std::find_if(choices.begin(), choices.end(), [text](const auto& each) {
        return *text == QStringView(each.raw);
    });
    if (choice == choices.end()) return false;
    target = choice->value;
    return true;
}

} // namespace

QString rawValue(PaceMode mode) {
    return rawValueIn(paceModes, mode);
}

QString rawValue(ReadingGuide guide) {
    return rawValueIn(readingGuides, guide);
}

QString rawValue(ScriptEnd end) {
    return rawValueIn(scriptEnds, end);
}

QString rawValue(Mirroring mirroring) {
    return rawValueIn(mirrorings, mirroring);
}

JsonValue encode(PaceMode mode) {
    return {rawValue(mode)};
}

JsonValue encode(ReadingGuide guide) {
    return {rawValue(guide)};
}

JsonValue encode(ScriptEnd end) {
    return {rawValue(end)};
}

JsonValue encode(Mirroring mirroring) {
    return {rawValue(mirroring)};
}

bool decode(const JsonValue& value, PaceMode& mode) {
    return decodeIn(paceModes, value, mode);
}

bool decode(const JsonValue& value, ReadingGuide& guide) {
    return decodeIn(readingGuides, value, guide);
}

bool decode(const JsonValue& value, ScriptEnd& end) {
    return decodeIn(scriptEnds, value, end);
}

bool decode(const JsonValue& value, Mirroring& mirroring) {
    return decodeIn(mirrorings, value, mirroring);
}

} // namespace tessaline
