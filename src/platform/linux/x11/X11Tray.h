#pragma once

struct xcb_connection_t;

namespace tessaline {

/// Whether a panel takes status items as windows at this moment.
bool hasX11Tray(xcb_connection_t* connection);

} // namespace tessaline
