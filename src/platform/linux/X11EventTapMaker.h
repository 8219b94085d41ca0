#pragma once

#include "platform/EventTap.h"

namespace tessaline {

/// Makes taps by means of the X server. Only one can exist at a time: it holds what a second one
/// would need.
class X11EventTapMaker final : public EventTapMaker {
public:
    std::unique_ptr<EventTap> create(EventTap::Handler handler) override;
};

} // namespace tessaline
