#pragma once

#include "platform/linux/DisplayServer.h"

struct xcb_connection_t;

namespace tessaline {

/// An X server, maybe one that a Wayland compositor runs.
class X11DisplayServer final : public DisplayServer {
public:
    /// Borrows Qt's connection, which must outlive the adapters.
    explicit X11DisplayServer(xcb_connection_t* connection);

    void addAdapters(Platform& platform) const override;

private:
    xcb_connection_t* connection;
};

} // namespace tessaline
