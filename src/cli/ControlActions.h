#pragma once

#include "cli/CommandSpec.h"

namespace tessaline {

/// What the running prompter can be told, in the order of the help. Any thread.
std::span<const ControlAction> controlActions();

/// The action of this name; null when there is none.
const ControlAction* controlActionNamed(QStringView name);

} // namespace tessaline
