#pragma once

#include "platform/DisplayLink.h"

#include <atomic>
#include <memory>

namespace tessaline {

/// Makes display links that go by the clock, at the refresh rate it was last told: 60 Hz at first
/// and where the rate makes no sense, 24 to 360 Hz otherwise.
class ClockDisplayLinkMaker final : public DisplayLinkMaker {
public:
    ClockDisplayLinkMaker();

    /// Null when the system has no thread left for the link.
    std::unique_ptr<DisplayLink> make(DisplayLink::Callback callback) override;
    void setRefreshRate(double hertz) override;

private:
    // Shared with the links, which may outlive their maker.
    std::shared_ptr<std::atomic<double>> refreshRate;
};

} // namespace tessaline
