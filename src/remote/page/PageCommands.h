#pragma once

#include "cli/ControlRequest.h"

#include <QString>

#include <optional>

namespace tessaline {

/// No message of a page is longer, in bytes.
inline constexpr int longestPageMessage = 4096;

/// The command that a page's message is: the words of `tessaline ctl`. None when it is anything
/// else, or a command that reaches beyond the reading: files, the program's windows, its end.
std::optional<ControlRequest> pageCommand(const QString& message);

} // namespace tessaline
