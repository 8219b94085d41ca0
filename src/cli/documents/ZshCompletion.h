#pragma once

#include <QString>

namespace tessaline {

/// What makes zsh complete the arguments of the program, made from the command table.
QString zshCompletion();

} // namespace tessaline
