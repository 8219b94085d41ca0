#include "platform/linux/wayland/LayerShellOffer.h"

#include "platform/linux/wayland/QtWaylandMessages.h"

#include "layer-shell-client.h"

#include <QByteArray>

#include <wayland-client.h>

#include <cstring>
#include <memory>

namespace tessaline {

namespace {

constexpr const char* noRoleVariable = "QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT";

struct Search {
    const char* wanted;
    bool isFound = false;
};

void note(void* data, wl_registry* /*registry*/, std::uint32_t /*name*/, const char* interface,
          std::uint32_t /*version*/) {
    auto& search = *static_cast<Search*>(data);
    if (std::strcmp(interface, search.wanted) == 0) search.isFound = true;
}

constexpr wl_registry_listener listener{
    .global = note,
    .global_remove = [](void* /*data*/, wl_registry* /*registry*/, std::uint32_t /*name*/) {}};

} // namespace

std::optional<bool> compositorOffersLayers() {
    return compositorOffers(zwlr_layer_shell_v1_interface.name);
}

std::optional<bool> compositorOffers(const char* interface) {
    const std::unique_ptr<wl_display, decltype(&wl_display_disconnect)> display(
        wl_display_connect(nullptr), wl_display_disconnect);
    if (!display) return std::nullopt;
    const std::unique_ptr<wl_registry, decltype(&wl_registry_destroy)> registry(
        wl_display_get_registry(display.get()), wl_registry_destroy);
    Search search{interface};
    wl_registry_add_listener(registry.get(), &listener, &search);
    if (wl_display_roundtrip(display.get()) < 0) return std::nullopt;
    return search.isFound;
}

void leaveRolesToUs() {
    qputenv(noRoleVariable, "1");
    qputenv("QT_WAYLAND_DISABLE_FIXED_POSITIONS", "1");
    // Nothing here is drawn by a graphics card, whose drivers take their time and memory.
    qputenv("QT_WAYLAND_DISABLE_HW_INTEGRATION", "1");
    qputenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", "none");
    handleQtWaylandMessages();
}

bool areRolesLeftToUs() {
    return qEnvironmentVariableIsSet(noRoleVariable);
}

} // namespace tessaline
