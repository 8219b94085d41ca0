#pragma once

#include "platform/ActivationPolicy.h"

namespace tessaline {

/// Linux desktops list windows, not programs: a window of ours is in the taskbar while it is shown,
/// whatever the kind.
class LinuxActivationPolicy final : public ActivationPolicy {
public:
    void set(Kind kind) override;
    /// Asks the window manager to activate the window of ours that was shown last.
    void activateIgnoringOtherApps() override;
};

} // namespace tessaline
