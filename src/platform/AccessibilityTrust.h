#pragma once

#include <QString>

#include <optional>

namespace tessaline {

/// Whether the system lets the program see and swallow input meant for other applications.
class AccessibilityTrust {
public:
    /// What there is to say of it where it is more than yes or no.
    struct Report {
        bool isWhole = false;        ///< shortcuts work in any application
        bool canBeGranted = false;   ///< `requestWithPrompt` may change it
        QString state;               ///< in a few words
        QString note;                ///< where what works, and what to do; empty: nothing to add
        QString reachOfGestures;     ///< over which windows the wheel and the buttons work
        bool gesturesAreSeen = true; ///< over windows of others, not only in ours

        bool operator==(const Report&) const = default;
    };

    virtual ~AccessibilityTrust() = default;

    /// The state at this moment; cheap enough to be asked every second.
    virtual bool isTrusted() const = 0;

    /// Asks the system to show its prompt for the permission if it is missing. Returns at once; the
    /// answer shows in `isTrusted` later.
    virtual void requestWithPrompt() = 0;

    /// None where yes or no says it all.
    virtual std::optional<Report> report() const { return std::nullopt; }
};

} // namespace tessaline
