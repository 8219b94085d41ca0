#pragma once

#include "platform/AccessibilityTrust.h"

namespace tessaline {

/// An X server lets every program see and take input of others: it takes no permission, only a
/// server with the extensions for it.
class X11AccessibilityTrust final : public AccessibilityTrust {
public:
    /// Asks the server once; it does not change its mind.
    X11AccessibilityTrust();

    bool isTrusted() const override;

    /// Says in the log what is missing, if something is.
    void requestWithPrompt() override;

private:
    bool trusted;
};

} // namespace tessaline
