#pragma once

#include "cli/ControlRequest.h"
#include "reading/PrompterStatus.h"

#include <QString>

namespace tessaline {

/// What the user is told of a command that was carried out, in one line: for `status` everything as
/// a JSON object, for others what they are about. `status` is what the prompter was then.
QString controlAnswer(const ControlRequest& request, const PrompterStatus& status);

} // namespace tessaline
