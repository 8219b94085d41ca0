#pragma once

#include "platform/linux/wayland/SurfaceRole.h"
#include "platform/linux/wayland/WaylandTurn.h"

#include <QPoint>
#include <QSize>

#include <deque>
#include <functional>
#include <memory>

struct wl_display;
struct wl_output;
struct wl_surface;
struct zwlr_layer_surface_v1;

namespace tessaline {

class WaylandGlobals;

/// The role of hanging over all windows and panels of an output, on each of its workspaces.
class LayerSurface final : public SurfaceRole {
public:
    /// Where the surface is, in points from the top left corner of its output.
    struct Place {
        QPoint corner;
        QSize size;

        bool operator==(const Place&) const = default;
    };

    /// Whether keys come here: never, always, or as they come to ordinary windows.
    enum class Keyboard { none, exclusive, onDemand };

    /// Gives a surface that has no role yet, and nothing to show, the role, and waits until the
    /// compositor agrees. `closed` is called when it takes the role back, as it does when the
    /// output goes; then this had better go too, but not from within the call. All is borrowed.
    LayerSurface(const WaylandGlobals& globals, wl_surface* surface, wl_output* output,
                 const Place& place, Keyboard keyboard, std::function<void()> closed);
    ~LayerSurface() override;

    void place(const Place& place);

    /// The corner that the pointer's places which are handed out now count from: the compositor may
    /// have sent them before it heard of a later place.
    QPoint cornerOfPointer() const { return cornerSettled; }

    void setKeyboard(Keyboard keyboard);
    void addPopup(xdg_popup* popup) override;

private:
    void requestPlace();
    void awaitPlace();
    void requestKeyboard();
    void configure(std::uint32_t serial);
    void close();

    wl_surface* surface;
    zwlr_layer_surface_v1* layer = nullptr;
    wl_display* display;
    Place current;
    QPoint cornerSettled;
    std::deque<std::unique_ptr<WaylandTurn>> placings; ///< that the compositor has not come to yet
    Keyboard keyboardWanted;
    std::function<void()> onClosed;
    bool isConfigured = false;
    bool isClosed = false;
};

} // namespace tessaline
