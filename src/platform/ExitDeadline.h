#pragma once

#include <chrono>

namespace tessaline {

/// Ends the program with this status after this time, should it not have ended by then: a thread
/// that waits for a file on a dead network drive cannot be told to stop. Call it once everything
/// that matters is saved. Of several the earliest counts. Where the system refuses the thread that
/// this takes, its alarm ends the program, and with it the status of a killed one.
void setExitDeadline(std::chrono::milliseconds time, int status);

} // namespace tessaline
