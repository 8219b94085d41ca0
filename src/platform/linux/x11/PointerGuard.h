#pragma once

#include <xcb/xcb.h>

#include <sys/types.h>

#include <chrono>
#include <memory>

namespace tessaline {

/// Breaks a connection to the X server, and so ends whatever is grabbed through it, should this
/// program stop in the middle: by SIGSTOP, Ctrl+Z or a debugger. Nothing within the program could
/// do that, so it is a process of its own. It lives as long as this object or the program.
class PointerGuard {
public:
    /// How long the program may give no sign of life while the guard is on. A quarter of a second
    /// is lost on the way.
    static constexpr std::chrono::milliseconds patience{1500};
    /// How often it should give one.
    static constexpr std::chrono::milliseconds signInterval{500};

    /// For the connection that made this resource of the server's. Null where the system has no
    /// process for it.
    static std::unique_ptr<PointerGuard> start(std::uint32_t resource);

    ~PointerGuard();
    PointerGuard(const PointerGuard&) = delete;
    PointerGuard& operator=(const PointerGuard&) = delete;

    /// Switches it on, or gives a sign of life. False: it is gone.
    bool watch();
    /// Switches it off.
    void rest();

private:
    struct Disconnect {
        void operator()(xcb_connection_t* open) const { xcb_disconnect(open); }
    };
    using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

    PointerGuard(Connection serverConnection, int socket, pid_t process);
    bool tell(char word) const;

    Connection connection; ///< the process shares it, and alone writes to it
    int socket;
    pid_t process;
};

} // namespace tessaline
