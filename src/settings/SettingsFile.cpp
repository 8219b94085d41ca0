#include "settings/SettingsFile.h"

#include "settings/KeptCopy.h"
#include "settings/WholeFile.h"

#include <QLoggingCategory>

#include <algorithm>
#include <iterator>

namespace tessaline {

namespace {

Q_LOGGING_CATEGORY(settingsLog, "app.tessaline.Tessaline.settings", QtInfoMsg)

} // namespace

std::optional<QByteArray> readSettingsFile(const QString& path, QString* error) {
    return readWholeFile(path, error, jsonFileLimit);
}

bool keepUnusableSettings(const QString& path) {
    if (!QFileInfo(path).isFile()) return true;
    QString error;
    const QString copy = keepCopy(path, &error);
    if (copy.isEmpty()) {
        qCWarning(settingsLog, "No copy can be made of the configuration that cannot be used: %ls",
                  qUtf16Printable(error));
    } else {
        qCWarning(settingsLog, "The configuration that cannot be used is kept as %ls",
                  qUtf16Printable(copy));
    }
    return !copy.isEmpty();
}

JsonValue::Object unknownMembers(const QString& path,
                                 const std::function<bool(const QString& name)>& knows) {
    const auto found = readJsonFile(path);
    const auto* object = found ? found->as<JsonValue::Object>() : nullptr;
    JsonValue::Object unknown;
    if (object)
        std::copy_if(object->begin(), object->end(), std::back_inserter(unknown),
                     [&knows](const JsonMember& member) { return !knows(member.name); });
    return unknown;
}

bool replaceSettingsFile(const QString& path, const QByteArray& bytes, QString* error) {
    return writeWholeFile(path, bytes, error);
}

} // namespace tessaline
