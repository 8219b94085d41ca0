#pragma once

#include <functional>

namespace tessaline {

/// Saves what can be saved when something calls `exit` in the middle of the program's run, as the
/// toolkit does once the display server is gone. One at a time; made and destroyed on the main
/// thread.
class AbruptExit {
public:
    /// Calls `save`, on the thread that exits, and then ends the program with EXIT_FAILURE at
    /// once: the program's other threads still run, so that tearing down what they use would be
    /// worse than leaving it.
    explicit AbruptExit(std::function<void()> save);

    /// From now on `exit` has its usual effect.
    ~AbruptExit();
    AbruptExit(const AbruptExit&) = delete;
    AbruptExit& operator=(const AbruptExit&) = delete;
};

} // namespace tessaline
