#pragma once

namespace tessaline {

/// How the system draws what is its own in our windows.
class NativeLook {
public:
    virtual ~NativeLook() = default;

    /// Gives the system's own widgets their dark look, and title bars where they have one. False
    /// where windows are drawn without those widgets: the program has to bring the look along. Call
    /// it once, before there are windows.
    virtual bool showDark() = 0;
};

} // namespace tessaline
