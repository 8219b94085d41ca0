#include "reading/FrameRate.h"

#include <algorithm>

namespace tessaline {

using namespace std::chrono_literals;

void FrameRate::add(TimePoint time) {
    times[next] = time;
    next = (next + 1) % times.size();
}

int FrameRate::framesPerSecond(TimePoint now) const {
    return int(std::count_if(times.begin(), times.end(),
                             [now](const auto& time) { return time && *time > now - 1s; }));
}

} // namespace tessaline
