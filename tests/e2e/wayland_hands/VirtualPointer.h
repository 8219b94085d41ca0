#pragma once

#include <cstdint>

struct zwlr_virtual_pointer_v1;

namespace tessaline {

class WaylandSeat;

/// A mouse of the session. Nothing is on its way before the next WaylandSeat::sync.
class VirtualPointer {
public:
    /// Borrows the seat.
    explicit VirtualPointer(WaylandSeat& seat);
    ~VirtualPointer();
    VirtualPointer(const VirtualPointer&) = delete;
    VirtualPointer& operator=(const VirtualPointer&) = delete;

    /// To a place among all outputs, which are this large together.
    void moveTo(std::uint32_t x, std::uint32_t y, std::uint32_t width, std::uint32_t height);

    /// Buttons count as those of X servers: 1 is the left one.
    void press(int button);
    void release(int button);

    /// Turns the wheel by notches, down and to the right.
    void turn(int right, int down);

    /// Moves two fingers on a touch pad, by as many points as the content is to move.
    void slide(double right, double down);

    /// Lifts the fingers.
    void lift();

private:
    void nameSource(std::uint32_t source);
    void sendButton(int button, std::uint32_t state);

    zwlr_virtual_pointer_v1* pointer;
};

} // namespace tessaline
