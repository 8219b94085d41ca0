#include "platform/unsupported/UnsupportedEventTapMaker.h"

namespace tessaline {

std::unique_ptr<EventTap> UnsupportedEventTapMaker::create(EventTap::Handler /*handler*/) {
    return nullptr;
}

} // namespace tessaline
