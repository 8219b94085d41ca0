#pragma once

#include "prompter/layout/Typography.h"
#include "prompter/view/FrameLook.h"

namespace tessaline {

/// How a reader wants a text to look: a plain value. A new one shows it as it is written, on black.
struct ScriptLook {
    FrameLook frame;
    Typography typography;

    bool operator==(const ScriptLook&) const = default;
};

} // namespace tessaline
