#pragma once

#include <cstdint>

struct xcb_connection_t;

namespace tessaline {

/// Whether a compositor runs on a screen: it owns a selection, which the server tells about when it
/// starts, ends or is killed.
class X11Compositor {
public:
    /// Borrows the connection, which must work, and has the server report changes to it. Without
    /// XFIXES none is reported.
    X11Compositor(xcb_connection_t* connection, std::uint32_t root);

    bool isRunning() const;

    /// Whether an event of xcb's says that a compositor started or ended.
    bool isChange(const void* event) const;

private:
    void listen(std::uint32_t root);

    xcb_connection_t* connection;
    std::uint32_t selection;
    std::uint8_t changeType = 0; ///< none of the server's event types while it is 0
};

} // namespace tessaline
