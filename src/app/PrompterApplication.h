#pragma once

#include <QString>

#include <optional>

namespace tessaline {

/// Runs the prompter until the user quits, with a text as if it had been pasted, if there is one.
/// Returns the exit status. Where there is no display, says so on standard error at once.
int runPrompter(int argc, char** argv, const std::optional<QString>& text);

} // namespace tessaline
