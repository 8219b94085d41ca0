#include "sources/obsidian/CommunityPlugins.h"

#include "settings/JsonReader.h"
#include "settings/JsonWriter.h"
#include "settings/WholeFile.h"
#include "sources/obsidian/CompanionPlugin.h"

#include <QFile>
#include <QStringList>

#include <algorithm>
#include <optional>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

std::optional<QStringList> readList(const QString& path, QString* error) {
    const auto bytes = readWholeFile(path, error, jsonFileLimit);
    if (!bytes) return std::nullopt;
    const auto value = parseJson(*bytes);
    QStringList list;
    const auto isString = [&list](const JsonValue& element) {
        const auto* text = element.as<QString>();
        if (text) list += *text;
        return text != nullptr;
    };
    const auto* array = value ? value->as<JsonValue::Array>() : nullptr;
    if (array && std::all_of(array->begin(), array->end(), isString)) return list;
    *error = u"The list of plug-ins is not a JSON array of strings"_s;
    return std::nullopt;
}

/// As Obsidian itself writes it: two spaces, no line break at the end.
QByteArray written(const QStringList& list) {
    QByteArray bytes;
    JsonWriter json(bytes);
    json.beginArray();
    for (const QString& text : list)
        json.string(text);
    json.endArray();
    return bytes.trimmed();
}

} // namespace

CommunityPlugins::CommunityPlugins(const QString& vault)
    : path(companionPlugin::settingsFolder(vault) + "/community-plugins.json"_L1) {}

bool CommunityPlugins::contain(const QString& identifier) const {
    QString error;
    const auto list = readList(path, &error);
    return list && list->contains(identifier);
}

bool CommunityPlugins::enable(const QString& identifier, QString* error) const {
    auto list = QFile::exists(path) ? readList(path, error) : QStringList();
    if (!list) return false;
    if (list->contains(identifier)) return true;
    return writeWholeFile(path, written(*list << identifier), error);
}

} // namespace tessaline
