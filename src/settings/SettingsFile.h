#pragma once

#include "settings/FolderLock.h"
#include "settings/SettingsTable.h"

#include <QByteArray>
#include <QFileInfo>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <utility>

namespace tessaline {

/// What becomes of the keys of a file that its table does not know, such as those that a newer
/// version wrote.
enum class UnknownKeys { dropped, kept };

// What `SettingsFile` does whatever its values are.

/// Reads a settings file. None when it cannot be used; `error` receives a one-line description.
std::optional<QByteArray> readSettingsFile(const QString& path, QString* error);

/// Keeps a copy of a file that cannot be used: the next save replaces it, and somebody may have
/// written it by hand. The log tells where. Returns whether the file itself is no loss any more.
bool keepUnusableSettings(const QString& path);

/// The members of a file's object whose names nobody `knows`.
JsonValue::Object unknownMembers(const QString& path,
                                 const std::function<bool(const QString& name)>& knows);

/// Replaces a settings file. False on failure; `error` receives a one-line description.
bool replaceSettingsFile(const QString& path, const QByteArray& bytes, QString* error);

/// A file of settings, which are a plain `Values` described by a table. A file that cannot be used
/// is never lost by a save: a copy is kept, or the file itself until a value changes.
template <typename Values>
class SettingsFile {
public:
    /// The file is where `path` says at each call. Borrows the table.
    SettingsFile(std::function<QString()> path, const SettingsTable<Values>& settingsTable,
                 UnknownKeys others)
        : place(std::move(path)), table(settingsTable), unknownKeys(others) {}

    bool exists() const { return QFileInfo::exists(place()); }

    /// The values that the file holds; `limited` receives the names of those that were beyond their
    /// limits. None when it cannot be used, which is to be followed by `keepUnusable`; `error`
    /// receives a one-line description.
    std::optional<Values> load(QString* error, QStringList* limited = nullptr) {
        unwritten.reset();
        const auto bytes = readSettingsFile(place(), error);
        return bytes ? table.decode(*bytes, error, limited) : std::nullopt;
    }

    /// Sees to it that no save loses a file that cannot be used, while these values are in force.
    void keepUnusable(const Values& present) {
        if (!keepUnusableSettings(place())) unwritten = present;
    }

    /// Writes everything, whole or not at all. False on failure; `error` receives a one-line
    /// description.
    bool save(const Values& values, QString* error) {
        const QString path = place();
        if (unwritten) {
            if (*unwritten == values) return true;
            keepUnusableSettings(path);
            unwritten.reset();
        }
        if (unknownKeys == UnknownKeys::dropped) return write(path, values, {}, error);
        const FolderLock lock(QFileInfo(path).path());
        return write(
            path, values,
            unknownMembers(path, [this](const QString& name) { return table.knows(name); }), error);
    }

private:
    bool write(const QString& path, const Values& values, const JsonValue::Object& others,
               QString* error) const {
        const auto bytes = table.encode(values, error, others);
        return bytes && replaceSettingsFile(path, *bytes, error);
    }

    const std::function<QString()> place;
    const SettingsTable<Values>& table;
    const UnknownKeys unknownKeys;
    std::optional<Values> unwritten; ///< in force when a file could be neither used nor copied
};

} // namespace tessaline
