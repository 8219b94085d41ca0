#pragma once

#include <chrono>

namespace tessaline {

/// Ends the program with this status after this time, should it not have ended by then: a thread
/// that waits for a file on a dead network drive cannot be told to stop. Call it once everything
/// that matters is saved.
void setExitDeadline(std::chrono::milliseconds time, int status);

} // namespace tessaline
