#pragma once

#include <QString>

namespace tessaline {

/// The manual page tessaline(1) in the man(7) language, made from the command table. Version and
/// date (YYYY-MM-DD) appear in its margins.
QString manualPage(const QString& version, const QString& date);

} // namespace tessaline
