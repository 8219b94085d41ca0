#pragma once

#include "platform/linux/x11/ScrollAxis.h"

#include <cstdint>
#include <map>
#include <optional>

struct xcb_input_button_press_event_t;

namespace tessaline {

class X11Connection;

/// The vertical scroll axes of all pointing devices that have one.
class X11ScrollAxes {
public:
    /// Learns which devices there are and where their axes stand. One round trip.
    void refresh(const X11Connection& connection);

    /// Whether any device has such an axis.
    bool areThere() const { return !devices.empty(); }

    /// By how much a motion event scrolls, if it does.
    std::optional<ScrollAxis::Delta> scrolledBy(const xcb_input_button_press_event_t& motion);

private:
    struct Device {
        std::uint16_t valuator = 0;
        ScrollAxis axis;
    };

    std::map<std::uint16_t, Device> devices; ///< by the device's number
};

} // namespace tessaline
