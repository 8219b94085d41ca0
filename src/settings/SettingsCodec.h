#pragma once

#include "settings/PersistedSettings.h"
#include "settings/SettingsTable.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tessaline {

/// What the configuration file holds: its keys, and that the clipboard is always enabled and the
/// active source is an enabled one.
const SettingsTable<PersistedSettings>& configurationTable();

/// Reads and writes the content of a configuration file by that table.
std::optional<PersistedSettings> decodeSettings(const QByteArray& bytes, QString* error = nullptr);
std::optional<QByteArray> encodeSettings(const PersistedSettings& settings,
                                         QString* error = nullptr);

} // namespace tessaline
