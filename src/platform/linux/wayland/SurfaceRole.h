#pragma once

struct xdg_popup;
struct xdg_surface;

namespace tessaline {

/// What a surface is to the compositor. Ends when it is destroyed, which has to happen before the
/// surface itself goes.
class SurfaceRole {
public:
    SurfaceRole() = default;
    virtual ~SurfaceRole() = default;
    SurfaceRole(const SurfaceRole&) = delete;
    SurfaceRole& operator=(const SurfaceRole&) = delete;

    /// The surface that popups name as their parent when they are made; null where they are given
    /// to this afterwards instead.
    virtual xdg_surface* popupParent() const { return nullptr; }
    virtual void addPopup(xdg_popup* /*popup*/) {}
};

} // namespace tessaline
