#include "reading/pace/PaceKeeper.h"

#include "reading/pace/PacePlan.h"

#include <algorithm>
#include <cmath>

namespace tessaline {

namespace {

/// What is missing is made up for in about so many seconds.
constexpr double secondsToCatchUp = 6.0;

/// The text is at most so many times faster or slower than planned.
constexpr double greatestCorrection = 4.5;

constexpr double framesPerSecond = 60.0;

} // namespace

void PaceKeeper::begin(double words) {
    promiseFrom(words);
    speed = 0.0;
}

double PaceKeeper::correction(double words, double wordsPerSecond) const {
    return std::exp((promised - words) / wordsPerSecond / secondsToCatchUp);
}

double PaceKeeper::advance(const PacePlan& plan, double y, double correction, double wordsPerSecond,
                           double seconds) {
    const double wanted =
        plan.velocityAt(y) * std::clamp(correction, 1 / greatestCorrection, greatestCorrection);
    const double change =
        std::pow(PacePlan::greatestChange, std::min(seconds * framesPerSecond, 1.0));
    speed = speed > 0.0 ? std::clamp(wanted, speed / change, speed * change) : wanted;
    promised += wordsPerSecond * seconds;
    return speed * seconds;
}

} // namespace tessaline
