#pragma once

#include <QString>

namespace tessaline {

/// What makes bash complete the arguments of the program, made from the command table.
QString bashCompletion();

} // namespace tessaline
