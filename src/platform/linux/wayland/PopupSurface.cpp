#include "platform/linux/wayland/PopupSurface.h"

#include "platform/linux/wayland/QtWaylandObjects.h"
#include "platform/linux/wayland/WaylandGlobals.h"
#include "platform/linux/wayland/WaylandQueue.h"

#include "xdg-shell-client.h"

#include <utility>

namespace tessaline {

PopupSurface::PopupSurface(const WaylandGlobals& globals, wl_surface* surface, SurfaceRole& parent,
                           const QRect& frame, bool grabs, std::function<void()> dismissed)
    : onDismissed(std::move(dismissed)) {
    const WaylandQueue queue(globals.display());
    window = xdg_wm_base_get_xdg_surface(queue.standIn(globals.windowBase()).get(), surface);
    static constexpr xdg_surface_listener windowListener{
        .configure = [](void* self, xdg_surface* configured, std::uint32_t serial) {
            static_cast<PopupSurface*>(self)->isConfigured = true;
            xdg_surface_ack_configure(configured, serial);
        }};
    xdg_surface_add_listener(window, &windowListener, this);

    xdg_positioner* positioner = positionerFor(globals, frame);
    popup = xdg_surface_get_popup(window, parent.popupParent(), positioner);
    xdg_positioner_destroy(positioner);
    static constexpr xdg_popup_listener popupListener{
        .configure = [](void* /*self*/, xdg_popup* /*popup*/, std::int32_t /*x*/,
                        std::int32_t /*y*/, std::int32_t /*width*/, std::int32_t /*height*/) {},
        .popup_done = [](void* self,
                         xdg_popup* /*popup*/) { static_cast<PopupSurface*>(self)->onDismissed(); },
        .repositioned = [](void* /*self*/, xdg_popup* /*popup*/, std::uint32_t /*token*/) {}};
    xdg_popup_add_listener(popup, &popupListener, this);
    parent.addPopup(popup);
    if (grabs) xdg_popup_grab(popup, waylandSeat(), waylandInputSerial());
    wl_surface_commit(surface);
    constexpr int turns = 10;
    for (int turn = 0; turn < turns && !isConfigured; ++turn)
        if (!queue.exchange()) break;
    WaylandQueue::handToQt(window);
    WaylandQueue::handToQt(popup);
}

PopupSurface::~PopupSurface() {
    xdg_popup_destroy(popup);
    xdg_surface_destroy(window);
}

/// The compositor moves what would leave the screen, as far as it has to.
xdg_positioner* PopupSurface::positionerFor(const WaylandGlobals& globals,
                                            const QRect& frame) const {
    xdg_positioner* positioner = xdg_wm_base_create_positioner(globals.windowBase());
    xdg_positioner_set_size(positioner, frame.width(), frame.height());
    xdg_positioner_set_anchor_rect(positioner, frame.x(), frame.y(), 1, 1);
    xdg_positioner_set_anchor(positioner, XDG_POSITIONER_ANCHOR_TOP_LEFT);
    xdg_positioner_set_gravity(positioner, XDG_POSITIONER_GRAVITY_BOTTOM_RIGHT);
    xdg_positioner_set_constraint_adjustment(positioner,
                                             XDG_POSITIONER_CONSTRAINT_ADJUSTMENT_SLIDE_X |
                                                 XDG_POSITIONER_CONSTRAINT_ADJUSTMENT_SLIDE_Y);
    return positioner;
}

} // namespace tessaline
