#include "platform/linux/ClockDisplayLinkMaker.h"

#include "platform/linux/ClockDisplayLink.h"
#include "platform/linux/RefreshSchedule.h"

#include <system_error>
#include <utility>

namespace tessaline {

ClockDisplayLinkMaker::ClockDisplayLinkMaker()
    : refreshRate(std::make_shared<std::atomic<double>>(usableRefreshRate(0.0))) {}

std::unique_ptr<DisplayLink> ClockDisplayLinkMaker::make(DisplayLink::Callback callback) {
    try {
        return std::make_unique<ClockDisplayLink>(std::move(callback), refreshRate);
    } catch (const std::system_error&) {
        return nullptr;
    }
}

void ClockDisplayLinkMaker::setRefreshRate(double hertz) {
    *refreshRate = usableRefreshRate(hertz);
}

} // namespace tessaline
