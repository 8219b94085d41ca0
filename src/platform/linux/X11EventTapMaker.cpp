#include "platform/linux/X11EventTapMaker.h"

#include "platform/linux/X11EventTap.h"

#include <utility>

namespace tessaline {

std::unique_ptr<EventTap> X11EventTapMaker::create(EventTap::Handler handler) {
    return X11EventTap::create(std::move(handler));
}

} // namespace tessaline
