#pragma once

#include "platform/GlobalKeyMonitor.h"

namespace tessaline {

/// Hears nothing, for systems where we know no way to.
class UnsupportedGlobalKeyMonitor final : public GlobalKeyMonitor {
public:
    /// Always null; says so in the log, once.
    std::unique_ptr<Registration> start(const Chord& chord, Handler handler) override;

private:
    bool reported = false;
};

} // namespace tessaline
