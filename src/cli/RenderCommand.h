#pragma once

#include "cli/RenderRequest.h"

namespace tessaline {

/// Renders as asked and reports what goes wrong on standard error. Returns the exit status. Call it
/// before an application object exists: a picture makes one of its own, which needs no display.
int runRender(const RenderRequest& request);

} // namespace tessaline
