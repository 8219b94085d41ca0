#pragma once

#include "platform/AccessibilityTrust.h"

namespace tessaline {

/// For systems that never let a program see input of others, such as a pure Wayland session.
class UnsupportedAccessibilityTrust final : public AccessibilityTrust {
public:
    bool isTrusted() const override;
    /// There is no prompt; says so in the log, once.
    void requestWithPrompt() override;

private:
    bool reported = false;
};

} // namespace tessaline
