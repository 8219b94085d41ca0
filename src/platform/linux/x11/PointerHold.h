#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace tessaline {

/// Decides when the pointer has to be held back from other applications.
///
/// Applications read scrolling from the motion of a device's scroll axis, which no grab of a button
/// keeps from them; only holding the whole pointer does. So it is held while Control alone is down,
/// but for no longer than it can be meant for scrolling: a key makes it a chord for somebody else,
/// a button that is not ours goes to whoever is under the pointer and so does the rest of the drag,
/// and a pointer that travels is to show what lies under it.
class PointerHold {
public:
    using Clock = std::chrono::steady_clock;
    using Time = Clock::time_point;

    void controlChanged(bool isDown);
    void otherKeyPressed();

    /// The user scrolled with Control: until a little later, all movement is that of an unsteady
    /// hand.
    void scrolled(Time now);

    /// The pointer moved, by about this many points.
    void moved(double distance, Time now);

    /// A button went down or up that is none of ours.
    void foreignButtonChanged(unsigned button, bool isDown);

    /// A button went down or up while it was ours: nobody else may see its release.
    void ownButtonChanged(unsigned button, bool isDown);

    /// The server would not let us have the pointer: somebody else holds it.
    void refused(Time now);

    bool isWanted(Time now) const;

    /// When `isWanted` may become true without anything else happening.
    std::optional<Time> nextLook(Time now) const;

private:
    bool isPossible() const;

    bool controlIsDown = false;
    bool chord = false;
    std::uint64_t foreignButtons = 0; ///< a bit for each
    std::uint64_t ownButtons = 0;
    double travelled = 0.0;
    Time lastMove{};
    Time lastScroll{};
    Time asideUntil{};
};

} // namespace tessaline
