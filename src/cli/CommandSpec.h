#pragma once

#include "cli/CommandOption.h"
#include "cli/ControlAction.h"
#include "cli/HelpSection.h"

namespace tessaline {

/// A command as the parser, the help, the manual and the completions know it.
struct CommandSpec {
    QStringView name;        ///< empty: the program itself
    QStringView usage;       ///< what follows the name, as the help shows it
    QStringView summary;     ///< what the program's help says about it, one or more lines
    QStringView description; ///< the first paragraphs of its own help
    QStringView notes;       ///< paragraphs behind the options; may be empty
    std::span<const CommandOption> options;
    std::span<const ControlAction> actions; ///< what its first operand may be; empty: a file
    std::span<const HelpSection> sections;
    qsizetype leastOperands = 0;
    qsizetype mostOperands = 0;
};

} // namespace tessaline
