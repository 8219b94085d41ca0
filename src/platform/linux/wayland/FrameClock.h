#pragma once

#include <cstdint>
#include <optional>

namespace tessaline {

/// The times of a surface's frames on the monotonic clock, in nanoseconds. A compositor tells them
/// in milliseconds from a beginning of its own that run over after 49 days; they are more even than
/// the times at which they get here. Never goes back.
class FrameClock {
public:
    /// When a frame was shown that the compositor dates so, and which is heard of now.
    std::uint64_t timeOfFrame(std::uint32_t milliseconds, std::uint64_t now);

    /// The time where no frame is shown.
    std::uint64_t timeWithoutFrame(std::uint64_t now);

private:
    std::uint64_t notBeforeLast(std::uint64_t time);

    struct Anchor {
        std::uint32_t milliseconds;
        std::uint64_t time;
    };

    std::optional<Anchor> anchor;
    std::uint64_t last = 0;
};

} // namespace tessaline
