#include "PacedReading.h"

#include "reading/MarkdownScript.h"
#include "reading/pace/PacedScroll.h"

#include <cmath>

namespace tessaline {

namespace {

constexpr double ticksPerSecond = 7.2e6; // of which frames at 60 and 144 hertz are whole numbers
constexpr double fontSize = 16.0;
constexpr int charactersPerLine = 50;
constexpr double lineHeight = 20.0;

} // namespace

PacedReading::PacedReading() : wallTime(QDate(2026, 1, 5), QTime(12, 0)) {
    links.clockFrequency = ticksPerSecond;
    options.pace = PaceMode::words;
    session = std::make_unique<ReadingSession>(settings, options, clocks());
    view = std::make_unique<LineView>(*session, charactersPerLine, lineHeight);
    session->setSource(std::make_unique<PacedScroll>(*session, links, timers, queue, clocks()));
}

Clocks PacedReading::clocks() {
    return {.steady =
                [this] {
                    return Clocks::TimePoint(
                        std::chrono::duration_cast<Clocks::TimePoint::duration>(
                            std::chrono::duration<double>(time)));
                },
            .wall = [this] { return wallTime.addMSecs(qint64(time * 1000)); }};
}

void PacedReading::show(const QString& markdown) {
    session->setContent({std::make_shared<const Script>(markdownScript(markdown, fontSize))});
}

void PacedReading::play() {
    settings.autoScrollEnabled = true;
    session->start();
}

void PacedReading::pause() {
    settings.autoScrollEnabled = false;
    session->stop();
}

PacedReading::Frame PacedReading::nextFrame(double framesPerSecond) {
    time += 1.0 / framesPerSecond;
    links.refresh(std::uint64_t(std::llround(time * ticksPerSecond)));
    queue.runAll();
    return {time, view->position(), view->wordsRead()};
}

std::vector<PacedReading::Frame> PacedReading::run(double seconds, double framesPerSecond) {
    std::vector<Frame> frames;
    for (const double end = time + seconds - 0.5 / framesPerSecond; time < end;)
        frames.push_back(nextFrame(framesPerSecond));
    return frames;
}

std::vector<PacedReading::Frame> PacedReading::runToEnd(double atMostSeconds,
                                                        double framesPerSecond) {
    std::vector<Frame> frames;
    for (const double end = time + atMostSeconds; time < end && !atEnd();)
        frames.push_back(nextFrame(framesPerSecond));
    return frames;
}

} // namespace tessaline
