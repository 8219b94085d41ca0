#pragma once

#include "platform/NativeLook.h"

#include <QObject>

#include <cstdint>

struct xcb_connection_t;

namespace tessaline {

/// Asks the window manager to draw dark title bars around the application's windows, by what GNOME
/// goes by. Others follow the desktop's colours whatever they are told.
class X11DarkTitleBars final : public QObject, public NativeLook {
public:
    /// Borrows Qt's connection. Needs the QGuiApplication.
    explicit X11DarkTitleBars(xcb_connection_t* connection);

    /// Sees to all windows that are created from now on. The windows themselves are not the
    /// server's to draw.
    bool showDark() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    xcb_connection_t* connection;
    std::uint32_t variant;
    std::uint32_t utf8;
};

} // namespace tessaline
