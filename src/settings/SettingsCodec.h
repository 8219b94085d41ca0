#pragma once

#include "settings/PersistedSettings.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tessaline {

/// Reads the content of a configuration file. Keys that are absent or null keep their default,
/// unknown keys are ignored, scroll speeds are limited to the greatest one, the clipboard is always
/// enabled and the active source is an enabled one. Any other departure from the format fails the
/// whole decode: none is returned and `error` receives a one-line description.
std::optional<PersistedSettings> decodeSettings(const QByteArray& bytes, QString* error = nullptr);

/// Writes the content of a configuration file: pretty-printed, keys in their fixed order, optional
/// ones left out when there is no value. JSON has no form for a number that is not finite: with
/// one of those none is returned and `error` receives a one-line description.
std::optional<QByteArray> encodeSettings(const PersistedSettings& settings,
                                         QString* error = nullptr);

} // namespace tessaline
