#pragma once

#include "platform/NativeLook.h"

namespace tessaline {

/// A system that has a dark look of its own if the test says so.
class FakeNativeLook final : public NativeLook {
public:
    bool showDark() override { return hasDark; }

    bool hasDark = false;
};

} // namespace tessaline
