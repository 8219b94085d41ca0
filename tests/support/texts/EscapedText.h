#pragma once

#include <QStringView>

#include <string>

namespace tessaline {

/// `text` in ASCII: everything but printable ASCII becomes \uXXXX, unit by unit.
std::string escapedText(QStringView text);

} // namespace tessaline
