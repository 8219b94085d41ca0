#pragma once

#include <cstdint>

namespace tessaline {

/// The refresh rate to work with, in hertz, where a screen claims `hertz`: 24 to 360, and 60 where
/// the claim is no number or not above 0.
double usableRefreshRate(double hertz);

/// When the refreshes of a screen are due: a whole number of periods after an origin, so that
/// rounding and late wake-ups never add up. Times are nanoseconds of one clock.
class RefreshSchedule {
public:
    /// The first refresh is due one period after `start`. The rate, in hertz, must be usable.
    RefreshSchedule(std::uint64_t start, double refreshRate);

    /// Refreshes per second.
    double rate() const { return hertz; }

    /// When the next refresh is due.
    std::uint64_t next() const;

    /// Moves past the next refresh, and past later ones that are due at `now` as well. Returns when
    /// the last of them was due.
    std::uint64_t advance(std::uint64_t now);

private:
    std::uint64_t timeOf(std::uint64_t refresh) const;

    std::uint64_t origin;
    double hertz;
    std::uint64_t passed = 0;
};

} // namespace tessaline
