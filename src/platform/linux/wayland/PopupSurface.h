#pragma once

#include "platform/linux/wayland/SurfaceRole.h"

#include <QRect>

#include <functional>

struct wl_surface;
struct xdg_popup;
struct xdg_positioner;
struct xdg_surface;

namespace tessaline {

class WaylandGlobals;

/// The role of a menu or a tool tip over another surface of ours, which has a role that Qt did not
/// give it and can therefore not put popups upon.
class PopupSurface final : public SurfaceRole {
public:
    /// `frame` is seen from the parent's top left corner, in points. A popup that grabs goes as
    /// soon as the user clicks elsewhere: `dismissed` is called, and this had better go, but not
    /// from within the call. All is borrowed; the parent must outlive this.
    PopupSurface(const WaylandGlobals& globals, wl_surface* surface, SurfaceRole& parent,
                 const QRect& frame, bool grabs, std::function<void()> dismissed);
    ~PopupSurface() override;

    xdg_surface* popupParent() const override { return window; }

private:
    xdg_positioner* positionerFor(const WaylandGlobals& globals, const QRect& frame) const;

    xdg_surface* window = nullptr;
    xdg_popup* popup = nullptr;
    std::function<void()> onDismissed;
    bool isConfigured = false;
};

} // namespace tessaline
