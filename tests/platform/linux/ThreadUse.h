#pragma once

#include <cstdint>
#include <string>

namespace tessaline {

/// What the system has counted for one thread of this process, to see whether it did anything.
struct ThreadUse {
    /// Times that the thread went to sleep or was put to sleep.
    std::string contextSwitches;
    /// Time on a CPU, in nanoseconds.
    std::uint64_t cpuTime = 0;

    bool operator==(const ThreadUse&) const = default;
};

/// The kernel's number of the calling thread.
int currentThread();

/// The counts of a living thread.
ThreadUse threadUse(int thread);

} // namespace tessaline
