#include "platform/linux/wayland/WaylandGlobals.h"

#include "platform/linux/wayland/WaylandQueue.h"

#include "layer-shell-client.h"
#include "xdg-shell-client.h"

#include <algorithm>
#include <cstring>

namespace tessaline {

namespace {

constexpr std::uint32_t newestLayerShell = 4;
/// Came into compositors with the keyboard on demand as it is meant.
constexpr const char* signOfRecency = "wp_single_pixel_buffer_manager_v1";

constexpr xdg_wm_base_listener pings{
    .ping = [](void* /*data*/, xdg_wm_base* base, std::uint32_t serial) {
        xdg_wm_base_pong(base, serial);
    }};

template <typename Object>
Object* bound(wl_registry* registry, std::uint32_t name, const wl_interface& interface,
              std::uint32_t version) {
    return static_cast<Object*>(wl_registry_bind(registry, name, &interface, version));
}

} // namespace

WaylandGlobals::WaylandGlobals(wl_display* borrowedDisplay) : waylandDisplay(borrowedDisplay) {
    const WaylandQueue queue(waylandDisplay);
    static constexpr wl_registry_listener listener{
        .global =
            [](void* globals, wl_registry* registry, std::uint32_t name, const char* interface,
               std::uint32_t version) {
                static_cast<WaylandGlobals*>(globals)->bind(registry, name, interface, version);
            },
        .global_remove = [](void* /*globals*/, wl_registry* /*registry*/,
                            std::uint32_t /*name*/) {}};
    wl_registry* registry = wl_display_get_registry(queue.standIn(waylandDisplay).get());
    wl_registry_add_listener(registry, &listener, this);
    queue.exchange();
    if (layers) WaylandQueue::handToQt(layers);
    if (windows) WaylandQueue::handToQt(windows);
    wl_registry_destroy(registry);
}

WaylandGlobals::~WaylandGlobals() {
    if (layers &&
        zwlr_layer_shell_v1_get_version(layers) >= ZWLR_LAYER_SHELL_V1_DESTROY_SINCE_VERSION)
        zwlr_layer_shell_v1_destroy(layers);
    if (windows) xdg_wm_base_destroy(windows);
}

bool WaylandGlobals::offersKeyboardOnDemand() const {
    return isRecent && layers &&
           zwlr_layer_shell_v1_get_version(layers) >=
               ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_ON_DEMAND_SINCE_VERSION;
}

void WaylandGlobals::bind(wl_registry* registry, std::uint32_t name, const char* interface,
                          std::uint32_t version) {
    if (std::strcmp(interface, zwlr_layer_shell_v1_interface.name) == 0) {
        layers = bound<zwlr_layer_shell_v1>(registry, name, zwlr_layer_shell_v1_interface,
                                            std::min(version, newestLayerShell));
    } else if (std::strcmp(interface, xdg_wm_base_interface.name) == 0) {
        windows = bound<xdg_wm_base>(registry, name, xdg_wm_base_interface, 1);
        xdg_wm_base_add_listener(windows, &pings, nullptr);
    } else if (std::strcmp(interface, signOfRecency) == 0) {
        isRecent = true;
    }
}

} // namespace tessaline
