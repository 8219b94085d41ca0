#pragma once

#include <QString>

namespace tessaline {

/// Writes "tessaline: " and the message to standard error, as one line whatever it holds.
void reportError(const QString& message);

/// The same. Returns the exit status of work that could not be done.
int reportFailure(const QString& reason);

/// Writes a text to standard output. Returns the exit status that this leads to; a failure has been
/// reported.
int printText(const QString& text);

/// Reports that standard output cannot be written. Returns the exit status that this leads to.
int reportOutputFailure(const QString& reason);

} // namespace tessaline
