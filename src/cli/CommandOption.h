#pragma once

#include "cli/CommandValue.h"

namespace tessaline {

/// An option as the parser and the help both know it.
struct CommandOption {
    QStringView name; ///< without its dashes
    CommandValue value;
    QStringView help;    ///< one or more lines
    char16_t letter = 0; ///< the short form; 0: there is none
};

} // namespace tessaline
