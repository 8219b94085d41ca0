#include "platform/unsupported/UnsupportedDisplayLinkMaker.h"

namespace tessaline {

std::unique_ptr<DisplayLink> UnsupportedDisplayLinkMaker::make(DisplayLink::Callback /*callback*/) {
    return nullptr;
}

void UnsupportedDisplayLinkMaker::setRefreshRate(double /*hertz*/) {}

} // namespace tessaline
