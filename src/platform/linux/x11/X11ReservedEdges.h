#pragma once

#include "platform/ReservedEdges.h"
#include "platform/linux/x11/PanelStrips.h"

#include <QSocketNotifier>
#include <QTimer>

#include <xcb/xcb.h>

#include <array>
#include <memory>
#include <vector>

namespace tessaline {

/// Reads from the windows of panels and docks what they keep of the desktop. Qt knows the area that
/// a window manager leaves of the whole desktop, which says nothing of one monitor among several.
///
/// It has a connection to the server of its own, so that what it listens to changes nothing for
/// anybody else.
class X11ReservedEdges final : public ReservedEdges {
public:
    /// Null where there is no X server.
    static std::unique_ptr<X11ReservedEdges> open();

    QMarginsF of(const QScreen& screen) const override;

private:
    struct Disconnect {
        void operator()(xcb_connection_t* open) const { xcb_disconnect(open); }
    };
    using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

    explicit X11ReservedEdges(Connection openConnection);
    void readEvents();
    bool tellsOfAChange(const xcb_generic_event_t& event) const;
    void look();
    std::vector<xcb_window_t> candidates() const;
    std::vector<PanelStrip> stripsOf(const std::vector<xcb_window_t>& windows) const;
    bool isSeen(xcb_window_t window) const;
    QSize desktopSize() const;

    Connection connection;
    xcb_window_t root;
    xcb_atom_t clientList;
    std::array<xcb_atom_t, 2> struts; ///< the better one first
    std::vector<PanelStrip> strips;
    QTimer lookTimer;
    QSocketNotifier notifier;
};

} // namespace tessaline
