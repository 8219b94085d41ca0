#pragma once

namespace tessaline {

/// What the program tells its caller when it ends.
struct ExitStatus {
    static constexpr int success = 0;
    static constexpr int failure = 1; ///< the work could not be done
    static constexpr int usage = 2;   ///< a wrong argument or an unreadable FILE; nothing was done
};

} // namespace tessaline
