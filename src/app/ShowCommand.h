#pragma once

#include "cli/CommandLine.h"

namespace tessaline {

/// Shows the prompter: starts the program or, if it runs on this display already, has it come to
/// the front, with the script that the request names, if any. Returns the exit status; what went
/// wrong has been reported.
int runShow(int argc, char** argv, const CommandLine::Show& request);

} // namespace tessaline
