#pragma once

#include <QString>

#include <optional>

namespace tessaline {

/// Reads all of a file that the user named, or of standard input for "-": UTF-8, with a byte order
/// mark at its start left out. Waits for whoever writes a FIFO or a terminal. Returns none on
/// failure with a one-line description in `error`. Any thread.
std::optional<QString> readTextInput(const QString& path, QString* error);

} // namespace tessaline
