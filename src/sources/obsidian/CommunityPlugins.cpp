#include "sources/obsidian/CommunityPlugins.h"

#include "settings/WholeFile.h"
#include "sources/obsidian/CompanionPlugin.h"

#include <QFile>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <optional>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;
using nlohmann::json;

namespace {

constexpr qint64 listLimit = qint64{1} << 20;

std::optional<json> readList(const QString& path, QString* error) {
    const auto bytes = readWholeFile(path, error, listLimit);
    if (!bytes) return std::nullopt;
    auto list = json::parse(bytes->begin(), bytes->end(), nullptr, false);
    const auto isString = [](const json& element) { return element.is_string(); };
    if (list.is_array() && std::all_of(list.begin(), list.end(), isString)) return list;
    *error = u"The list of plug-ins is not a JSON array of strings"_s;
    return std::nullopt;
}

bool names(const json& list, const QString& identifier) {
    return std::find(list.begin(), list.end(), identifier.toStdString()) != list.end();
}

} // namespace

CommunityPlugins::CommunityPlugins(const QString& vault)
    : path(companionPlugin::settingsFolder(vault) + "/community-plugins.json"_L1) {}

bool CommunityPlugins::contain(const QString& identifier) const {
    QString error;
    const auto list = readList(path, &error);
    return list && names(*list, identifier);
}

bool CommunityPlugins::enable(const QString& identifier, QString* error) const {
    auto list = QFile::exists(path) ? readList(path, error) : json::array();
    if (!list) return false;
    if (names(*list, identifier)) return true;
    list->push_back(identifier.toStdString());
    // As Obsidian itself writes it: two spaces, no line break at the end.
    return writeWholeFile(path, QByteArray::fromStdString(list->dump(2)), error);
}

} // namespace tessaline
