#include "platform/linux/wayland/LayerSurface.h"

#include "platform/linux/wayland/WaylandGlobals.h"
#include "platform/linux/wayland/WaylandQueue.h"

#include "layer-shell-client.h"

#include <utility>

namespace tessaline {

LayerSurface::LayerSurface(const WaylandGlobals& globals, wl_surface* borrowedSurface,
                           wl_output* output, const Place& place, Keyboard keyboard,
                           std::function<void()> closed)
    : surface(borrowedSurface)
    , display(globals.display())
    , current(place)
    , cornerSettled(place.corner)
    , keyboardWanted(keyboard)
    , onClosed(std::move(closed)) {
    const WaylandQueue queue(globals.display());
    layer = zwlr_layer_shell_v1_get_layer_surface(queue.standIn(globals.layerShell()).get(),
                                                  surface, output,
                                                  ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, "tessaline");
    static constexpr zwlr_layer_surface_v1_listener listener{
        .configure =
            [](void* self, zwlr_layer_surface_v1* /*layer*/, std::uint32_t serial,
               std::uint32_t /*width*/,
               std::uint32_t /*height*/) { static_cast<LayerSurface*>(self)->configure(serial); },
        .closed =
            [](void* self, zwlr_layer_surface_v1* /*layer*/) {
                static_cast<LayerSurface*>(self)->close();
            }};
    zwlr_layer_surface_v1_add_listener(layer, &listener, this);
    constexpr int overPanels = -1;
    zwlr_layer_surface_v1_set_exclusive_zone(layer, overPanels);
    zwlr_layer_surface_v1_set_anchor(layer, ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP |
                                                ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT);
    requestPlace();
    requestKeyboard();
    wl_surface_commit(surface);
    // One turn is enough, as compositors go; one that never agrees must not hold us up.
    constexpr int turns = 10;
    for (int turn = 0; turn < turns && !isConfigured && !isClosed; ++turn)
        if (!queue.exchange()) break;
    WaylandQueue::handToQt(layer);
}

LayerSurface::~LayerSurface() {
    zwlr_layer_surface_v1_destroy(layer);
}

void LayerSurface::place(const Place& place) {
    if (current == place) return;
    current = place;
    requestPlace();
    wl_surface_commit(surface);
    awaitPlace();
}

void LayerSurface::awaitPlace() {
    placings.push_back(std::make_unique<WaylandTurn>(display, [this, corner = current.corner] {
        cornerSettled = corner;
        placings.pop_front();
    }));
}

void LayerSurface::setKeyboard(Keyboard keyboard) {
    if (keyboardWanted == keyboard) return;
    keyboardWanted = keyboard;
    requestKeyboard();
    wl_surface_commit(surface);
}

void LayerSurface::addPopup(xdg_popup* popup) {
    zwlr_layer_surface_v1_get_popup(layer, popup);
}

void LayerSurface::requestPlace() {
    zwlr_layer_surface_v1_set_size(layer, std::uint32_t(current.size.width()),
                                   std::uint32_t(current.size.height()));
    zwlr_layer_surface_v1_set_margin(layer, current.corner.y(), 0, 0, current.corner.x());
}

void LayerSurface::requestKeyboard() {
    std::uint32_t interactivity = ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE;
    switch (keyboardWanted) {
    case Keyboard::none:
        break;
    case Keyboard::exclusive:
        interactivity = ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_EXCLUSIVE;
        break;
    case Keyboard::onDemand:
        interactivity = ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_ON_DEMAND;
        break;
    }
    zwlr_layer_surface_v1_set_keyboard_interactivity(layer, interactivity);
}

void LayerSurface::configure(std::uint32_t serial) {
    isConfigured = true;
    zwlr_layer_surface_v1_ack_configure(layer, serial);
}

void LayerSurface::close() {
    isClosed = true;
    onClosed();
}

} // namespace tessaline
