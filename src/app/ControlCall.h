#pragma once

#include "cli/ControlRequest.h"

namespace tessaline {

/// Has the running prompter carry out a command and prints its answer. Returns the exit status:
/// failure, reported in one line, when no prompter runs or it refuses. Needs no application object.
int runControl(const ControlRequest& request);

} // namespace tessaline
