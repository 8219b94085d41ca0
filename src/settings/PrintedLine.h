#pragma once

#include <QString>

namespace tessaline {

/// Prints a line on standard output at once. Any thread.
void printLine(const QString& line);

} // namespace tessaline
