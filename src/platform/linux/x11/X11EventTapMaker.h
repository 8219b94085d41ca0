#pragma once

#include "platform/EventTap.h"

namespace tessaline {

/// Makes taps by means of the X server. Only one can exist at a time: it holds what a second one
/// would need.
class X11EventTapMaker final : public EventTapMaker {
public:
    /// A refusal is logged once, until a tap has been had in between.
    std::unique_ptr<EventTap> create(EventTap::Handler handler) override;

private:
    bool reportedRefusal = false;
};

} // namespace tessaline
