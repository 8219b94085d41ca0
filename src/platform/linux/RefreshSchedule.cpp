#include "platform/linux/RefreshSchedule.h"

#include <algorithm>
#include <cmath>

namespace tessaline {

namespace {

constexpr double nanosecondsPerSecond = 1e9;
constexpr double slowestHertz = 24.0;
constexpr double fastestHertz = 360.0;
constexpr double commonHertz = 60.0;

} // namespace

double usableRefreshRate(double hertz) {
    if (!std::isfinite(hertz) || hertz <= 0.0) return commonHertz;
    return std::clamp(hertz, slowestHertz, fastestHertz);
}

RefreshSchedule::RefreshSchedule(std::uint64_t start, double refreshRate)
    : origin(start), hertz(refreshRate) {}

std::uint64_t RefreshSchedule::next() const {
    return timeOf(passed + 1);
}

std::uint64_t RefreshSchedule::advance(std::uint64_t now) {
    ++passed;
    if (now > origin) {
        const double periods = static_cast<double>(now - origin) * hertz / nanosecondsPerSecond;
        passed = std::max(passed, static_cast<std::uint64_t>(periods));
    }
    return timeOf(passed);
}

std::uint64_t RefreshSchedule::timeOf(std::uint64_t refresh) const {
    const double elapsed = static_cast<double>(refresh) * nanosecondsPerSecond / hertz;
    return origin + static_cast<std::uint64_t>(std::llround(elapsed));
}

} // namespace tessaline
