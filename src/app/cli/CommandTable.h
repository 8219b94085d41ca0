#pragma once

#include "app/cli/CommandSpec.h"

namespace tessaline {

/// What the program does when no command is named.
const CommandSpec& programSpec();

/// The commands, in the order of the help.
std::span<const CommandSpec> commandSpecs();

/// The command of this name; null when there is none.
const CommandSpec* commandNamed(QStringView name);

} // namespace tessaline
