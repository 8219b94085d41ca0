#include "PacedReading.h"

namespace tessaline {

PacedReading::Frame PacedReading::nextFrame(double framesPerSecond) {
    showFrame(framesPerSecond);
    return {now(), view.position(), view.wordsRead()};
}

std::vector<PacedReading::Frame> PacedReading::run(double seconds, double framesPerSecond) {
    std::vector<Frame> frames;
    for (const double end = now() + seconds - 0.5 / framesPerSecond; now() < end;)
        frames.push_back(nextFrame(framesPerSecond));
    return frames;
}

std::vector<PacedReading::Frame> PacedReading::runToEnd(double atMostSeconds,
                                                        double framesPerSecond) {
    std::vector<Frame> frames;
    for (const double end = now() + atMostSeconds; now() < end && !atEnd();)
        frames.push_back(nextFrame(framesPerSecond));
    return frames;
}

} // namespace tessaline
