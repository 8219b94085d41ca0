#include "app/ConfigWindowPlacement.h"

#include "platform/Rect.h"

namespace tessaline {

Rect configWindowFrame(const Rect& window, const Rect& screenFrame, double prompterHeight) {
    return {.x = screenFrame.midX() - window.width * 0.5,
            .y = screenFrame.maxY() - prompterHeight - window.height,
            .width = window.width,
            .height = window.height};
}

} // namespace tessaline
