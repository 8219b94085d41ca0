#pragma once

#include <cstdint>

class QScreen;
class QWindow;
struct wl_compositor;
struct wl_display;
struct wl_output;
struct wl_seat;
struct wl_surface;

namespace tessaline {

// What Qt has of the Wayland session, all of it Qt's own; null where Qt has none. Main thread, and
// a QGuiApplication on the platform "wayland". Nobody else asks Qt for these: it is not promised
// that newer versions go on answering.

wl_display* waylandDisplay();
wl_compositor* waylandCompositor();
wl_seat* waylandSeat();
wl_surface* waylandSurface(QWindow& window); ///< of a window that is shown
wl_output* waylandOutput(QScreen& screen);   ///< null for the stand-in of a missing screen

/// The serial number of the user's last press.
std::uint32_t waylandInputSerial();

/// Has Qt hand out the input that it has read so far, before it reads on.
void handOutWaylandInput();

/// Takes a window's surface away without its being hidden: nothing is painted until it was hidden
/// and is shown again.
void withdrawSurface(QWindow& window);

} // namespace tessaline
