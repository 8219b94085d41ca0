#pragma once

namespace tessaline {

/// Whether the system lets the program see and swallow input meant for other applications.
class AccessibilityTrust {
public:
    virtual ~AccessibilityTrust() = default;

    /// The state at this moment; cheap enough to be asked every second.
    virtual bool isTrusted() const = 0;

    /// Asks the system to show its prompt for the permission if it is missing. Returns at once; the
    /// answer shows in `isTrusted` later.
    virtual void requestWithPrompt() = 0;
};

} // namespace tessaline
