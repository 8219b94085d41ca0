#pragma once

#include "platform/GlobalKeyMonitor.h"

namespace tessaline {

/// Hears a chord by grabbing it from the X server. No other key is delivered, and the chord reaches
/// nobody else, windows of ours included.
class X11KeyMonitor final : public GlobalKeyMonitor {
public:
    std::unique_ptr<Registration> start(const Chord& chord, Handler handler) override;

private:
    bool reportedRefusal = false;
};

} // namespace tessaline
