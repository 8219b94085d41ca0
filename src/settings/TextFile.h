#pragma once

#include "settings/Utf8.h"

#include <QString>

#include <optional>

namespace tessaline {

/// Reads the text of a regular file of valid UTF-8, as `readWholeFile` does: never waits for a
/// writer. Returns none on failure with a one-line description in `error`. Any thread.
std::optional<QString> readTextFile(const QString& path, ByteOrderMark mark,
                                    QString* error = nullptr);

} // namespace tessaline
