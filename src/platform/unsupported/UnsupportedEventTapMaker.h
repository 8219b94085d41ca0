#pragma once

#include "platform/EventTap.h"

namespace tessaline {

/// Makes no taps, for systems where we know no way to.
class UnsupportedEventTapMaker final : public EventTapMaker {
public:
    /// Always null.
    std::unique_ptr<EventTap> create(EventTap::Handler handler) override;
};

} // namespace tessaline
