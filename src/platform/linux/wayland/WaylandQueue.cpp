#include "platform/linux/wayland/WaylandQueue.h"

namespace tessaline {

WaylandQueue::WaylandQueue(wl_display* borrowedDisplay)
    : display(borrowedDisplay), queue(wl_display_create_queue(borrowedDisplay)) {}

WaylandQueue::~WaylandQueue() {
    wl_event_queue_destroy(queue);
}

bool WaylandQueue::exchange() const {
    return wl_display_roundtrip_queue(display, queue) >= 0;
}

} // namespace tessaline
