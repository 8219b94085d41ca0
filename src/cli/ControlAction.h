#pragma once

#include "cli/CommandValue.h"
#include "cli/ControlCommand.h"

namespace tessaline {

/// A command to the running prompter as the parser, the help and the completions know it.
struct ControlAction {
    ControlCommand command;
    QStringView name;
    CommandValue value; ///< never optional
    QStringView help;   ///< one line
};

} // namespace tessaline
