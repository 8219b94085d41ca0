#include "reading/pace/PacePlan.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tessaline {

namespace {

constexpr double cellHeight = 0.5;

/// A breath at the rate for which it is given; at others in proportion.
constexpr double breathSeconds = 0.4;
constexpr double breathWordsPerSecond = 150.0 / 60.0;

constexpr double longestBreath = 3.0;

/// Breaths are taken from the time of the words behind them, of which this share at least remains.
constexpr double leastShareOfWords = 0.5;

/// However much blank space there is, it passes no faster than this.
constexpr double fastestBlank = 300.0;

/// As `greatestChange` limits how much the speed changes in a time, it limits by how many points a
/// second it changes for each point of height. A little of it is kept for corrections on the way.
const double steepest = 0.985 * 60.0 * std::log(PacePlan::greatestChange);

/// Over which times before and behind a place the words have to come out, one pass for each: short
/// ones first, as they are the harder ones.
constexpr std::array secondsToEven{0.7, 1.0, 1.5, 2.0, 3.0, 6.0, 12.0};

/// A stretch of equal density: a line, or the blank space between two.
struct Stretch {
    double height;
    double words;
    double seconds = 0.0;

    bool isBlank() const { return words <= 0.0; }
};

void append(std::vector<Stretch>& stretches, double height, double words) {
    if (height <= 0.0) return;
    if (words <= 0.0 && !stretches.empty() && stretches.back().isBlank()) {
        stretches.back().height += height;
    } else {
        stretches.push_back({height, std::max(words, 0.0)});
    }
}

std::vector<Stretch> stretchesOf(const std::vector<PacedLine>& lines) {
    std::vector<Stretch> stretches;
    double y = lines.front().top;
    for (const PacedLine& line : lines) {
        append(stretches, line.top - y, 0.0);
        append(stretches, line.height, line.words);
        y = line.top + line.height;
    }
    if (stretches.empty()) stretches.push_back({cellHeight, 0.0});
    return stretches;
}

/// Gives every stretch its time. Lines and the blank space before them take together as long as
/// the words.
void timeStretches(std::vector<Stretch>& stretches, double wordsPerSecond) {
    const double breath =
        std::min(breathSeconds * breathWordsPerSecond / wordsPerSecond, longestBreath);
    for (std::size_t i = 0; i < stretches.size();) {
        double blank = 0.0;
        if (stretches[i].isBlank()) {
            blank = std::max(breath, stretches[i].height / fastestBlank);
            stretches[i].seconds = blank;
            ++i;
        }
        std::size_t end = i;
        double words = 0.0;
        for (; end < stretches.size() && !stretches[end].isBlank(); ++end)
            words += stretches[end].words;
        if (end == i) break;
        const double seconds = words / wordsPerSecond;
        const double taken = std::min(blank, seconds * (1 - leastShareOfWords));
        if (i > 0 && blank > 0.0 && blank <= breath) stretches[i - 1].seconds = taken;
        for (; i < end; ++i)
            stretches[i].seconds = stretches[i].words / words * (seconds - taken);
    }
}

/// Times from the first cell to each, and to the end.
std::vector<double> timesOf(const std::vector<double>& velocities) {
    std::vector<double> times{0.0};
    times.reserve(velocities.size() + 1);
    for (const double velocity : velocities)
        times.push_back(times.back() + cellHeight / velocity);
    return times;
}

/// The nearest velocities that are nowhere steeper than allowed: between the fastest such below the
/// wanted ones and the slowest above.
std::vector<double> smoothed(const std::vector<double>& wanted) {
    constexpr double step = cellHeight;
    std::vector<double> slow = wanted;
    std::vector<double> fast = wanted;
    for (std::size_t i = 1; i < wanted.size(); ++i) {
        slow[i] = std::min(slow[i], slow[i - 1] + steepest * step);
        fast[i] = std::max(fast[i], fast[i - 1] - steepest * step);
    }
    for (std::size_t i = wanted.size() - 1; i-- > 0;) {
        slow[i] = std::min(slow[i], slow[i + 1] + steepest * step);
        fast[i] = std::max(fast[i], fast[i + 1] - steepest * step);
    }
    for (std::size_t i = 0; i < wanted.size(); ++i)
        slow[i] = 2 * slow[i] * fast[i] / (slow[i] + fast[i]);
    return slow;
}

/// Makes every place faster or slower by as much as its surroundings are late or early.
std::vector<double> evened(const std::vector<double>& velocities,
                           const std::vector<double>& wantedTimes, double seconds) {
    const std::vector<double> times = timesOf(velocities);
    std::vector<double> result(velocities.size());
    std::size_t first = 0;
    std::size_t last = 0;
    for (std::size_t i = 0; i < velocities.size(); ++i) {
        while (wantedTimes[i] - wantedTimes[first] > seconds)
            ++first;
        while (last < velocities.size() && wantedTimes[last] - wantedTimes[i] < seconds)
            ++last;
        result[i] =
            velocities[i] * (times[last] - times[first]) / (wantedTimes[last] - wantedTimes[first]);
    }
    return result;
}

} // namespace

PacePlan::PacePlan(const std::vector<PacedLine>& lines, double wordsPerSecond)
    : start(lines.front().top) {
    std::vector<Stretch> stretches = stretchesOf(lines);
    timeStretches(stretches, wordsPerSecond);
    double wordsSoFar = 0.0;
    double top = 0.0;
    for (const Stretch& stretch : stretches) {
        const double bottom = top + stretch.height;
        const auto cells = std::size_t(std::ceil(bottom / cellHeight));
        while (velocities.size() < cells) {
            const double y = double(velocities.size()) * cellHeight;
            velocities.push_back(stretch.height / stretch.seconds);
            words.push_back(wordsSoFar + stretch.words * (y - top) / stretch.height);
        }
        wordsSoFar += stretch.words;
        top = bottom;
    }
    words.push_back(wordsSoFar);
    const std::vector<double> wantedTimes = timesOf(velocities);
    velocities = smoothed(velocities);
    for (const double seconds : secondsToEven)
        velocities = smoothed(evened(velocities, wantedTimes, seconds));
}

double PacePlan::bottom() const {
    return start + double(velocities.size()) * cellHeight;
}

std::size_t PacePlan::cellAt(double y) const {
    const double cell = std::floor((y - start) / cellHeight);
    return std::size_t(std::clamp(cell, 0.0, double(velocities.size() - 1)));
}

double PacePlan::velocityAt(double y) const {
    return velocities[cellAt(y)];
}

double PacePlan::wordsAbove(double y) const {
    const std::size_t cell = cellAt(y);
    const double share = (y - start) / cellHeight - double(cell);
    return words[cell] + std::clamp(share, 0.0, 1.0) * (words[cell + 1] - words[cell]);
}

double PacePlan::secondsBetween(double y, double end) const {
    double seconds = 0.0;
    for (std::size_t cell = cellAt(y); y < end && cell < velocities.size(); ++cell) {
        const double next = std::min(start + double(cell + 1) * cellHeight, end);
        seconds += std::max(next - y, 0.0) / velocities[cell];
        y = next;
    }
    return seconds;
}

double PacePlan::placeAfter(double y, double seconds) const {
    const bool isForward = seconds > 0.0;
    double left = std::abs(seconds);
    for (std::size_t cell = cellAt(y); left > 0.0; isForward ? ++cell : --cell) {
        left -= cellHeight / velocities[cell];
        y += isForward ? cellHeight : -cellHeight;
        if (cell == (isForward ? velocities.size() - 1 : 0)) break;
    }
    return y;
}

} // namespace tessaline
