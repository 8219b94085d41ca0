#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <optional>

namespace tessaline {

/// Counts the frames of the last second.
class FrameRate {
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    /// A frame was shown.
    void add(TimePoint time);

    /// Frames shown in the second before `now`.
    int framesPerSecond(TimePoint now) const;

private:
    /// A ring of the newest times: as many as the fastest displays show in a second, and no
    /// allocation while frames are shown.
    std::array<std::optional<TimePoint>, 512> times{};
    std::size_t next = 0;
};

} // namespace tessaline
