#pragma once

#include "platform/AccessibilityTrust.h"

namespace tessaline {

/// A trust that the test grants and revokes; counts the prompts.
class FakeAccessibilityTrust final : public AccessibilityTrust {
public:
    bool isTrusted() const override { return trusted; }
    void requestWithPrompt() override { ++prompts; }

    bool trusted = false;
    int prompts = 0;
};

} // namespace tessaline
