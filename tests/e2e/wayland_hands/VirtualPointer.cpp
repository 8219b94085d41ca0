#include "VirtualPointer.h"

#include "WaylandSeat.h"
#include "virtual-pointer-client.h"

#include <linux/input-event-codes.h>

namespace tessaline {

namespace {

constexpr double pointsOfANotch = 15; // as libinput counts them

std::uint32_t codeOf(int button) {
    switch (button) {
    case 2:
        return BTN_MIDDLE;
    case 3:
        return BTN_RIGHT;
    default:
        return BTN_LEFT;
    }
}

} // namespace

VirtualPointer::VirtualPointer(WaylandSeat& seat)
    : pointer(zwlr_virtual_pointer_manager_v1_create_virtual_pointer(seat.pointers, seat.seat)) {}

VirtualPointer::~VirtualPointer() {
    zwlr_virtual_pointer_v1_destroy(pointer);
}

void VirtualPointer::moveTo(std::uint32_t x, std::uint32_t y, std::uint32_t width,
                            std::uint32_t height) {
    zwlr_virtual_pointer_v1_motion_absolute(pointer, WaylandSeat::now(), x, y, width, height);
    zwlr_virtual_pointer_v1_frame(pointer);
}

void VirtualPointer::press(int button) {
    sendButton(button, WL_POINTER_BUTTON_STATE_PRESSED);
}

void VirtualPointer::release(int button) {
    sendButton(button, WL_POINTER_BUTTON_STATE_RELEASED);
}

void VirtualPointer::turn(int right, int down) {
    const auto send = [this](std::uint32_t axis, int notches) {
        if (notches == 0) return;
        zwlr_virtual_pointer_v1_axis_discrete(pointer, WaylandSeat::now(), axis,
                                              wl_fixed_from_double(notches * pointsOfANotch),
                                              notches);
        nameSource(WL_POINTER_AXIS_SOURCE_WHEEL);
    };
    send(WL_POINTER_AXIS_HORIZONTAL_SCROLL, right);
    send(WL_POINTER_AXIS_VERTICAL_SCROLL, down);
    zwlr_virtual_pointer_v1_frame(pointer);
}

void VirtualPointer::slide(double right, double down) {
    const auto send = [this](std::uint32_t axis, double points) {
        if (points == 0) return;
        zwlr_virtual_pointer_v1_axis(pointer, WaylandSeat::now(), axis,
                                     wl_fixed_from_double(points));
        nameSource(WL_POINTER_AXIS_SOURCE_FINGER);
    };
    send(WL_POINTER_AXIS_HORIZONTAL_SCROLL, right);
    send(WL_POINTER_AXIS_VERTICAL_SCROLL, down);
    zwlr_virtual_pointer_v1_frame(pointer);
}

void VirtualPointer::lift() {
    for (const auto axis : {WL_POINTER_AXIS_HORIZONTAL_SCROLL, WL_POINTER_AXIS_VERTICAL_SCROLL}) {
        zwlr_virtual_pointer_v1_axis_stop(pointer, WaylandSeat::now(), axis);
        nameSource(WL_POINTER_AXIS_SOURCE_FINGER);
    }
    zwlr_virtual_pointer_v1_frame(pointer);
}

/// Some compositors take it for that of the axis named last, and give up when two differ.
void VirtualPointer::nameSource(std::uint32_t source) {
    zwlr_virtual_pointer_v1_axis_source(pointer, source);
}

void VirtualPointer::sendButton(int button, std::uint32_t state) {
    zwlr_virtual_pointer_v1_button(pointer, WaylandSeat::now(), codeOf(button), state);
    zwlr_virtual_pointer_v1_frame(pointer);
}

} // namespace tessaline
