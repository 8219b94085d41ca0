#pragma once

#include "platform/DisplayLink.h"

namespace tessaline {

/// Offers no display links, for systems where we know none.
class UnsupportedDisplayLinkMaker final : public DisplayLinkMaker {
public:
    /// Always null.
    std::unique_ptr<DisplayLink> make(DisplayLink::Callback callback) override;
    void setRefreshRate(double hertz) override;
};

} // namespace tessaline
