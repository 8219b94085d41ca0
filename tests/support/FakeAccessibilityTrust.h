#pragma once

#include "platform/AccessibilityTrust.h"

namespace tessaline {

/// A trust that the test grants and revokes; counts the prompts.
class FakeAccessibilityTrust final : public AccessibilityTrust {
public:
    bool isTrusted() const override { return trusted; }
    void requestWithPrompt() override { ++prompts; }
    std::optional<Report> report() const override { return told; }

    bool trusted = false;
    int prompts = 0;
    std::optional<Report> told; ///< none: yes or no says it all
};

} // namespace tessaline
