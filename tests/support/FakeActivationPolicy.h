#pragma once

#include "platform/ActivationPolicy.h"

#include <vector>

namespace tessaline {

/// Keeps what it was told.
class FakeActivationPolicy final : public ActivationPolicy {
public:
    void set(Kind kind) override { kinds.push_back(kind); }
    void activateIgnoringOtherApps() override { ++activations; }

    std::vector<Kind> kinds;
    int activations = 0;
};

} // namespace tessaline
