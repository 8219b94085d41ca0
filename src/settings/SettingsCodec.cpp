#include "settings/SettingsCodec.h"

#include "settings/EnumerationCodec.h"
#include "settings/JsonReader.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;
using nlohmann::ordered_json;

namespace {

void report(QString* error, const QString& description) {
    if (error) *error = description;
}

// Each `decode` takes the one form of JSON value that its target accepts, and tells whether the
// value had that form.

template <typename T>
bool decodeAs(const JsonValue& value, T& target) {
    const T* content = value.as<T>();
    if (content) target = *content;
    return content;
}

bool decode(const JsonValue& value, bool& target) {
    return decodeAs(value, target);
}

bool decode(const JsonValue& value, double& target) {
    return decodeAs(value, target);
}

bool decode(const JsonValue& value, std::uint32_t& target) {
    constexpr double greatest = std::numeric_limits<std::uint32_t>::max();
    double number = 0;
    if (!decode(value, number) || number < 0 || number > greatest || number != std::floor(number))
        return false;
    target = static_cast<std::uint32_t>(number);
    return true;
}

bool decode(const JsonValue& value, QString& target) {
    return decodeAs(value, target);
}

bool decode(const JsonValue& value, QByteArray& target) {
    const auto* text = value.as<QString>();
    if (!text) return false;
    auto result =
        QByteArray::fromBase64Encoding(text->toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    // Qt lets missing padding pass.
    if (!result || text->size() % 4 != 0) return false;
    target = std::move(*result);
    return true;
}

bool decode(const JsonValue& value, std::set<SourceType>& target) {
    const auto* array = value.as<JsonValue::Array>();
    if (!array) return false;
    target.clear();
    return std::all_of(array->begin(), array->end(), [&target](const JsonValue& element) {
        SourceType source{};
        return tessaline::decode(element, source) && (target.insert(source), true);
    });
}

bool decode(const JsonValue& value, AppleNotesConfiguration& target) {
    const JsonValue* identifier = value.find(u"noteId");
    const JsonValue* name = value.find(u"noteName");
    return identifier && decode(*identifier, target.noteId) && name &&
           decode(*name, target.noteName);
}

template <typename T>
bool decode(const JsonValue& value, std::optional<T>& target) {
    return decode(value, target.emplace());
}

/// The members of the file's object. Remembers the first one that was of the wrong form.
class Members {
public:
    explicit Members(const JsonValue& members) : object(members) {}

    /// Takes the key's value over into `target`, which stays when the key is absent or null.
    template <typename T>
    void take(const char* key, T& target) {
        const JsonValue* member = object.find(QString::fromLatin1(key));
        if (!member || member->isNull() || wrongKey) return;
        if (!decode(*member, target)) wrongKey = key;
    }

    const char* firstWrongKey() const { return wrongKey; }

private:
    const JsonValue& object;
    const char* wrongKey = nullptr;
};

/// Settles which sources are enabled and which of them is active.
void takeSources(Members& members, PersistedSettings& settings) {
    std::optional<std::set<SourceType>> enabled;
    std::optional<SourceType> active;
    members.take("enabledSourceTypes", enabled);
    members.take("activeSourceType", active);
    // A file without the list was written when the active source was the only choice.
    if (!enabled && active) enabled = {*active};
    settings.enabledSourceTypes = enabled.value_or(std::set<SourceType>());
    settings.enabledSourceTypes.insert(SourceType::clipboard);
    if (active && settings.enabledSourceTypes.count(*active) > 0)
        settings.activeSourceType = *active;
}

PersistedSettings takeSettings(Members& members) {
    PersistedSettings settings;
    members.take("notePath", settings.notePath);
    members.take("fontSize", settings.fontSize);
    members.take("width", settings.width);
    members.take("height", settings.height);
    members.take("xOffset", settings.xOffset);
    members.take("scrollSpeed", settings.scrollSpeed);
    members.take("lastNonZeroScrollSpeed", settings.lastNonZeroScrollSpeed);
    members.take("autoScrollEnabled", settings.autoScrollEnabled);
    members.take("scrollRate", settings.scrollRate);
    members.take("hasCompletedOnboarding", settings.hasCompletedOnboarding);
    members.take("appleNotesConfig", settings.appleNotesConfig);
    members.take("obsidianBookmarkData", settings.obsidianBookmarkData);
    members.take("preferredDisplayID", settings.preferredDisplayID);
    takeSources(members, settings);

    constexpr double maxSpeed = PersistedSettings::maxScrollSpeed;
    settings.scrollSpeed = std::min(settings.scrollSpeed, maxSpeed);
    settings.lastNonZeroScrollSpeed = std::min(settings.lastNonZeroScrollSpeed, maxSpeed);
    return settings;
}

/// The file's one object.
std::optional<JsonValue> parseObject(const QByteArray& bytes, QString* error) {
    auto value = parseJson(bytes, error);
    if (!value || value->as<JsonValue::Object>()) return value;
    report(error, u"The JSON is not an object"_s);
    return std::nullopt;
}

ordered_json encode(const AppleNotesConfiguration& note) {
    return {{"noteId", note.noteId.toStdString()}, {"noteName", note.noteName.toStdString()}};
}

template <typename Enumeration>
std::string encodeText(Enumeration value) {
    return tessaline::encode(value).template as<QString>()->toStdString();
}

ordered_json encode(const std::set<SourceType>& sources) {
    ordered_json array = ordered_json::array();
    for (const SourceType source : sources)
        array.push_back(encodeText(source));
    return array;
}

ordered_json encode(const PersistedSettings& settings) {
    ordered_json object{
        {"notePath", settings.notePath.toStdString()},
        {"fontSize", settings.fontSize},
        {"width", settings.width},
        {"height", settings.height},
        {"xOffset", settings.xOffset},
        {"scrollSpeed", settings.scrollSpeed},
        {"lastNonZeroScrollSpeed", settings.lastNonZeroScrollSpeed},
        {"autoScrollEnabled", settings.autoScrollEnabled},
        {"scrollRate", encodeText(settings.scrollRate)},
        {"hasCompletedOnboarding", settings.hasCompletedOnboarding},
        {"activeSourceType", encodeText(settings.activeSourceType)},
    };
    if (settings.appleNotesConfig) object["appleNotesConfig"] = encode(*settings.appleNotesConfig);
    object["enabledSourceTypes"] = encode(settings.enabledSourceTypes);
    if (settings.obsidianBookmarkData)
        object["obsidianBookmarkData"] = settings.obsidianBookmarkData->toBase64().toStdString();
    if (settings.preferredDisplayID) object["preferredDisplayID"] = *settings.preferredDisplayID;
    return object;
}

/// The first key whose number is not finite, or an empty string.
std::string firstNonFinite(const ordered_json& object) {
    for (const auto& [key, value] : object.items())
        if (value.is_number_float() && !std::isfinite(value.get<double>())) return key;
    return {};
}

} // namespace

std::optional<PersistedSettings> decodeSettings(const QByteArray& bytes, QString* error) {
    const auto object = parseObject(bytes, error);
    if (!object) return std::nullopt;
    Members members(*object);
    PersistedSettings settings = takeSettings(members);
    if (members.firstWrongKey()) {
        report(error, u"Invalid value for \"%1\""_s.arg(QLatin1String(members.firstWrongKey())));
        return std::nullopt;
    }
    return settings;
}

std::optional<QByteArray> encodeSettings(const PersistedSettings& settings, QString* error) {
    const ordered_json object = encode(settings);
    const std::string nonFinite = firstNonFinite(object);
    if (!nonFinite.empty()) {
        report(error, u"\"%1\" is not a finite number"_s.arg(QString::fromStdString(nonFinite)));
        return std::nullopt;
    }
    return QByteArray::fromStdString(object.dump(2) + '\n');
}

} // namespace tessaline
