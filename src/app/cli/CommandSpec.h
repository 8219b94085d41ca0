#pragma once

#include "app/cli/CommandOption.h"

#include <span>

namespace tessaline {

/// A command as the parser and the help both know it.
struct CommandSpec {
    QStringView name;        ///< empty: the program itself
    QStringView usage;       ///< what follows the name, as the help shows it
    QStringView summary;     ///< what the program's help says about it, one or more lines
    QStringView description; ///< the first paragraphs of its own help
    QStringView details;     ///< the sections behind the options of its own help
    std::span<const CommandOption> options;
    qsizetype leastOperands = 0;
    qsizetype mostOperands = 0;
};

} // namespace tessaline
