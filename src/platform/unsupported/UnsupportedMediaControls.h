#pragma once

#include "platform/MediaControls.h"

namespace tessaline {

/// For systems whose media keys are not known here.
class UnsupportedMediaControls final : public MediaControls {
public:
    void show(const Playing& /*playing*/, Player& /*player*/) override {}
    void tellJump() override {}
    void withdraw() override {}
};

} // namespace tessaline
