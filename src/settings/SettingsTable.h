#pragma once

#include "settings/JsonReader.h"
#include "settings/JsonWriter.h"
#include "settings/SettingsForms.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <concepts>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace tessaline {

/// One key of a settings file, and the member of `Values` that it stands for. The member's type
/// decides its form in the file, its initialiser is the default.
template <typename Values>
struct SettingsKey {
    const char* name;
    std::function<bool(const JsonValue& value, Values& values)> read;
    std::function<bool(const Values& values)> isLeftOut;
    std::function<bool(const Values& values, JsonWriter& json)> write;
    std::function<bool(Values& values)> limit; ///< whether the value was beyond its limits
};

/// The key is left out when there is no value.
template <typename Values, typename T>
SettingsKey<Values> settingsKey(const char* name, T Values::*member) {
    return {name,
            [member](const JsonValue& value, Values& values) {
                return tessaline::read(value, values.*member);
            },
            [member](const Values& values) { return isAbsent(values.*member); },
            [member](const Values& values, JsonWriter& json) {
                return tessaline::write(json, values.*member);
            },
            [](Values&) { return false; }};
}

/// `limit` brings a value within what is allowed.
template <typename Values, typename T, typename Limit>
requires std::invocable<Limit, T&> SettingsKey<Values> settingsKey(const char* name,
                                                                   T Values::*member, Limit limit) {
    auto key = settingsKey(name, member);
    key.limit = [member, limit](Values& values) {
        const T before = values.*member;
        limit(values.*member);
        return !(values.*member == before);
    };
    return key;
}

/// A number above `greatest` is taken for that.
template <typename Values>
SettingsKey<Values> settingsKey(const char* name, double Values::*member, double greatest) {
    return settingsKey(name, member,
                       [greatest](double& value) { value = std::min(value, greatest); });
}

/// Everything that a settings file is about: its keys, in the order in which they are written.
template <typename Values>
class SettingsTable {
public:
    using Keys = std::vector<SettingsKey<Values>>;

    /// `settle` makes the members of freshly read values, read from `object`, agree.
    explicit SettingsTable(
        Keys everyKey, std::function<void(const JsonValue& object, Values& values)> settle =
                           [](const JsonValue&, Values&) {})
        : keys(std::move(everyKey)), makeAgree(std::move(settle)) {}

    /// Reads the content of a file. Keys that are absent or null keep their default, unknown ones
    /// are passed over, and `limited` receives the names of those that were beyond their limits.
    /// Any other departure from the format fails as a whole: none is returned and `error` receives
    /// a one-line description.
    std::optional<Values> decode(const QByteArray& bytes, QString* error = nullptr,
                                 QStringList* limited = nullptr) const {
        const auto object = parseJsonObject(bytes, error);
        if (!object) return std::nullopt;
        Values values;
        for (const auto& key : keys) {
            const JsonValue* value = object->find(QString::fromLatin1(key.name));
            if (!value || value->isNull() || key.read(*value, values)) continue;
            if (error)
                *error = QStringLiteral("Invalid value for \"%1\"").arg(QLatin1String(key.name));
            return std::nullopt;
        }
        makeAgree(*object, values);
        const QStringList names = limit(values);
        if (limited) *limited = names;
        return values;
    }

    /// Writes the content of a file: indented, with all keys but those without a value, then
    /// `others`. With a number that is not finite none is returned and `error` receives a one-line
    /// description.
    std::optional<QByteArray> encode(const Values& values, QString* error = nullptr,
                                     const JsonValue::Object& others = {}) const {
        QByteArray bytes;
        JsonWriter json(bytes);
        json.beginObject();
        for (const auto& key : keys) {
            if (key.isLeftOut(values)) continue;
            json.key(key.name);
            if (key.write(values, json)) continue;
            if (error) {
                *error =
                    QStringLiteral("\"%1\" is not a finite number").arg(QLatin1String(key.name));
            }
            return std::nullopt;
        }
        for (const JsonMember& other : others) {
            json.key(other.name);
            json.value(other.value);
        }
        json.endObject();
        return bytes;
    }

    /// Brings every value within its limits. Returns the names of those that were not.
    QStringList limit(Values& values) const {
        QStringList names;
        for (const auto& key : keys) {
            if (key.limit(values)) names += QString::fromLatin1(key.name);
        }
        return names;
    }

    /// Whether a file's member of this name is one of ours.
    bool knows(const QString& name) const {
        return std::any_of(keys.begin(), keys.end(),
                           [&name](const auto& key) { return name == QLatin1String(key.name); });
    }

private:
    const Keys keys;
    const std::function<void(const JsonValue& object, Values& values)> makeAgree;
};

} // namespace tessaline
