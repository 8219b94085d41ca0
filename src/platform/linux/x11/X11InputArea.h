#pragma once

#include <QRect>

#include <optional>

class QWidget;
struct xcb_connection_t;

namespace tessaline {

/// Where a window takes the mouse, which on an X server is a shape of its own beside that of what
/// is seen.
class X11InputArea {
public:
    /// Borrows Qt's connection. Use it after the version of XFixes has been asked for.
    explicit X11InputArea(xcb_connection_t* serverConnection) : connection(serverConnection) {}

    /// As `WindowTraits::setInputArea` says.
    void set(const QWidget& window, const std::optional<QRect>& area);

private:
    xcb_connection_t* connection;
    bool isSet = false; ///< else the server knows of no such shape
};

} // namespace tessaline
