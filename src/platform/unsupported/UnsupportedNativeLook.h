#pragma once

#include "platform/NativeLook.h"

namespace tessaline {

/// For systems that draw nothing in our windows.
class UnsupportedNativeLook final : public NativeLook {
public:
    /// Always false.
    bool showDark() override { return false; }
};

} // namespace tessaline
