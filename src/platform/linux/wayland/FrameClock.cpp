#include "platform/linux/wayland/FrameClock.h"

#include <algorithm>

namespace tessaline {

namespace {

constexpr std::uint64_t nanosecondsPerMillisecond = 1'000'000;
/// Where the compositor's clock and ours differ by more, something was suspended or restarted.
constexpr std::uint64_t largestDifference = 100 * nanosecondsPerMillisecond;

} // namespace

std::uint64_t FrameClock::timeOfFrame(std::uint32_t milliseconds, std::uint64_t now) {
    if (anchor) {
        const std::uint32_t since = milliseconds - anchor->milliseconds;
        const std::uint64_t time = anchor->time + since * nanosecondsPerMillisecond;
        const std::uint64_t difference = time > now ? time - now : now - time;
        if (difference <= largestDifference) {
            anchor = Anchor{milliseconds, time};
            return notBeforeLast(time);
        }
    }
    anchor = Anchor{milliseconds, now};
    return notBeforeLast(now);
}

std::uint64_t FrameClock::timeWithoutFrame(std::uint64_t now) {
    return notBeforeLast(now);
}

std::uint64_t FrameClock::notBeforeLast(std::uint64_t time) {
    last = std::max(last, time);
    return last;
}

} // namespace tessaline
