#pragma once

#include <cstdint>

struct wl_display;
struct wl_registry;
struct xdg_wm_base;
struct zwlr_layer_shell_v1;

namespace tessaline {

/// What the compositor offers that Qt does not ask it for. Main thread only.
class WaylandGlobals {
public:
    /// Waits for the compositor's list. Borrows the display.
    explicit WaylandGlobals(wl_display* display);
    ~WaylandGlobals();
    WaylandGlobals(const WaylandGlobals&) = delete;
    WaylandGlobals& operator=(const WaylandGlobals&) = delete;

    wl_display* display() const { return waylandDisplay; }
    zwlr_layer_shell_v1* layerShell() const { return layers; } ///< null where it is not offered
    xdg_wm_base* windowBase() const { return windows; }        ///< for popups

    /// Whether a surface can take part in who has the keyboard as windows do. Compositors of the
    /// time when that was new say so and keep the keyboard here.
    bool offersKeyboardOnDemand() const;

private:
    void bind(wl_registry* registry, std::uint32_t name, const char* interface,
              std::uint32_t version);

    wl_display* waylandDisplay;
    zwlr_layer_shell_v1* layers = nullptr;
    xdg_wm_base* windows = nullptr;
    bool isRecent = false;
};

} // namespace tessaline
