#pragma once

#include <QObject>

#include <cstdint>

struct xcb_connection_t;

namespace tessaline {

/// Asks the window manager to draw dark title bars around the application's windows, by what GNOME
/// goes by. Others follow the desktop's colours whatever they are told.
class X11DarkTitleBars final : public QObject {
public:
    /// Sees to all windows that are created from now on. Owned by the application; borrows Qt's
    /// connection.
    explicit X11DarkTitleBars(xcb_connection_t* connection);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    xcb_connection_t* connection;
    std::uint32_t variant;
    std::uint32_t utf8;
};

} // namespace tessaline
