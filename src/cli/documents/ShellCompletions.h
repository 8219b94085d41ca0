#pragma once

#include <QString>

namespace tessaline {

// What makes shells complete the arguments of the program, made from the command table.

QString bashCompletion();
QString fishCompletion();
QString zshCompletion();

} // namespace tessaline
