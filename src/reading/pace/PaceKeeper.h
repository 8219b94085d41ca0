#pragma once

namespace tessaline {

class PacePlan;

/// Keeps a promise of so many words a second while a plan is followed: what a pause of the machine,
/// the first moment or a rounding took is made up for gently.
class PaceKeeper {
public:
    /// The promise holds from here on: so many words had passed then. The speed may be another one
    /// at once.
    void begin(double words);

    /// The promise holds from here on, at the speed that the text has.
    void promiseFrom(double words) { promised = words; }

    /// By which factor the text has to be faster than planned where `words` have passed, to make up
    /// for what is missing.
    double correction(double words, double wordsPerSecond) const;

    /// How many points the text moves in the next frame, from the height `y` of a plan on, by so
    /// much faster than planned.
    double advance(const PacePlan& plan, double y, double correction, double wordsPerSecond,
                   double seconds);

    /// Points per second of the last frame; 0 before the first.
    double velocity() const { return speed; }

private:
    double promised = 0.0;
    double speed = 0.0;
};

} // namespace tessaline
