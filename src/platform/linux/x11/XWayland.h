#pragma once

class QString;
struct xcb_connection_t;

namespace tessaline {

/// Whether the X server is one that a Wayland compositor runs for programs like this: windows of
/// Wayland programs, and the keys and the wheel that they get, are then out of its sight. Needs a
/// QGuiApplication that is connected to that server.
bool isXWayland(xcb_connection_t* connection);

/// Whether a screen has the name that such a server makes up where it does not know a better one.
bool isXWaylandOutput(const QString& name);

} // namespace tessaline
