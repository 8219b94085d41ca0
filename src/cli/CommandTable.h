#pragma once

#include "cli/CommandSpec.h"

namespace tessaline {

// What the command line takes: the parser, the help, the manual page and the shells' completions
// all come from here. Any thread.

/// What the program does when no command is named.
const CommandSpec& programSpec();

/// The commands, in the order of the help.
std::span<const CommandSpec> commandSpecs();

/// The command of this name; null when there is none.
const CommandSpec* commandNamed(QStringView name);

} // namespace tessaline
