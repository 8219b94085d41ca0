#pragma once

#include "cli/CommandSpec.h"

#include <QString>

namespace tessaline {

/// The help of a command, or of the program with a list of its commands.
QString helpText(const CommandSpec& spec);

} // namespace tessaline
