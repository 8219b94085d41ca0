#pragma once

#include <QString>

namespace tessaline {

/// What makes fish complete the arguments of the program, made from the command table.
QString fishCompletion();

} // namespace tessaline
