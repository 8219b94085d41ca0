#pragma once

#include <cstdint>

struct xcb_connection_t;

namespace tessaline {

/// Tells when the window manager has carried out what it was told before, such as that a window is
/// gone. It answers late, and without a word; but it takes things in their order, and of every
/// window that it might manage it is asked first where that one may go. So a window that is never
/// shown asks for another place, and comes there when the window manager has got so far.
class X11ManagerTurn {
public:
    /// Borrows the connection, which must work and outlive this.
    X11ManagerTurn(xcb_connection_t* connection, std::uint32_t root);
    ~X11ManagerTurn();
    X11ManagerTurn(const X11ManagerTurn&) = delete;
    X11ManagerTurn& operator=(const X11ManagerTurn&) = delete;

    /// Asks for an answer. One to an earlier call no longer counts.
    void await();

    /// Whether an event of xcb's is the answer that is waited for.
    bool isAnswer(const void* event) const;

private:
    xcb_connection_t* connection;
    std::uint32_t asking;
    std::int16_t place = 0;
};

} // namespace tessaline
