#pragma once

namespace tessaline {

struct ControlRequest;
struct ReadingOptions;

/// Takes over what a command from outside says about how the user reads; nothing when the command
/// is about something else.
void takeOver(const ControlRequest& request, ReadingOptions& options);

} // namespace tessaline
