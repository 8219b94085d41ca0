#pragma once

#include <cstddef>
#include <vector>

namespace tessaline {

/// A line of a script as it is set: its height and place in points from the script's top, and how
/// many words of it are spoken.
struct PacedLine {
    double top = 0.0;
    double height = 0.0;
    double words = 0.0;
};

/// How fast each height of some lines is to pass the reader's eyes, so that so many words pass in
/// every second and the speed never changes abruptly. Full lines pass slowly, those of few words
/// quickly, and blank space in the time of a breath. A plain value, worked out when it is made.
class PacePlan {
public:
    /// The most that the speed changes within a sixtieth of a second, as a factor.
    static constexpr double greatestChange = 1.02;

    /// For lines from the top down, at least one, and a rate above 0.
    PacePlan(const std::vector<PacedLine>& lines, double wordsPerSecond);

    /// Points per second, above 0.
    double velocityAt(double y) const;

    /// Words of the lines above a height.
    double wordsAbove(double y) const;

    double top() const { return start; }
    double bottom() const;

    /// How long the lines between two heights take.
    double secondsBetween(double y, double end) const;

    /// Where the text is after so many seconds at these velocities, or was before; as far as there
    /// are lines.
    double placeAfter(double y, double seconds) const;

private:
    std::size_t cellAt(double y) const;

    double start = 0.0;
    std::vector<double> velocities; ///< of cells that are all of one height
    std::vector<double> words;      ///< above each cell, and above the end
};

} // namespace tessaline
