#include "reading/ReadingSession.h"

#include "reading/PositionSource.h"
#include "reading/PrompterStatus.h"
#include "reading/ScriptChange.h"
#include "settings/PersistedSettings.h"
#include "settings/ReadingOptions.h"

#include <algorithm>
#include <utility>

namespace tessaline {

namespace {

/// Whether a text was exchanged for another one, rather than edited.
bool isAnotherText(const ScriptChange& change, std::size_t countBefore) {
    return 2 * change.oldCount > countBefore;
}

} // namespace

ReadingSession::ReadingSession(const PersistedSettings& borrowedSettings,
                               const ReadingOptions& borrowedOptions, Clocks givenClocks)
    : settings(borrowedSettings)
    , options(borrowedOptions)
    , currentScript(std::make_shared<const Script>())
    , promise(options, givenClocks)
    , clocks(std::move(givenClocks)) {}

ReadingSession::~ReadingSession() = default;

void ReadingSession::setContent(RenderedContent content) {
    wordCount = content.wordCount;
    const auto before = std::exchange(currentScript, std::move(content.script));
    const ScriptChange change = ScriptChange::between(*before, *currentScript);
    spokenWords.scriptChanged(change);
    const auto kept = placeAfter(change, before->paragraphs.size());
    if (!kept && isAnotherText(change, before->paragraphs.size())) beginAnew();
    if (kept) readersPlace = *kept;
    readersPlace.paragraph = std::min(readersPlace.paragraph, currentScript->paragraphs.size() - 1);
    // The first one last: the others follow what it tells.
    for (auto view = views.rbegin(); view != views.rend(); ++view)
        (*view)->scriptChanged(*before, change, kept.has_value());
}

/// Where the reader is in the changed script, if what they had before the eyes is still there.
std::optional<ReadingPlace> ReadingSession::placeAfter(const ScriptChange& change,
                                                       std::size_t countBefore) const {
    const std::size_t newCount = currentScript->paragraphs.size();
    const auto& [paragraph, fraction] = readersPlace;
    if (paragraph < change.first || newCount == countBefore) return readersPlace;
    if (paragraph < change.first + change.oldCount) return std::nullopt;
    return ReadingPlace{paragraph + newCount - countBefore, fraction};
}

void ReadingSession::moveTo(qsizetype offset) {
    if (!views.empty()) views.front()->moveTo(offset);
}

void ReadingSession::moveBy(double points) {
    if (!views.empty()) views.front()->moveBy(points);
}

void ReadingSession::reached(const ReadingView& view, const ReadingPlace& place) {
    if (views.empty() || &view != views.front()) return;
    readersPlace = place;
    for (std::size_t i = 1; i < views.size(); ++i)
        views[i]->follow(place);
    if (source) source->readerMoved();
}

void ReadingSession::addView(ReadingView& view) {
    views.push_back(&view);
    view.follow(readersPlace);
}

void ReadingSession::removeView(ReadingView& view) {
    std::erase(views, &view);
}

Pace ReadingSession::pace() const {
    return {settings.scrollSpeed, settings.scrollRate};
}

void ReadingSession::updateReadingTime() {
    seconds = pace().secondsFor(views.empty() ? 0.0 : views.front()->distance());
}

void ReadingSession::setSource(std::unique_ptr<PositionSource> newSource) {
    source = std::move(newSource);
    updatePace();
    if (settings.autoScrollEnabled) start();
}

/// Whether the source may move the text.
bool ReadingSession::isOn() const {
    return settings.autoScrollEnabled && !held;
}

void ReadingSession::start() {
    if (!source || held) return;
    if (readersPlace.fraction == ReadingPlace{}.fraction) beginAnew();
    promise.begin();
    elapsed.start(clocks.steady());
    source->start();
}

void ReadingSession::setHeld(bool hold) {
    if (std::exchange(held, hold) == hold) return;
    if (hold) return stop();
    if (settings.autoScrollEnabled) start();
}

void ReadingSession::stop() {
    elapsed.stop(clocks.steady());
    if (source) source->stop();
}

/// What was promised and counted belongs to a reading that is over.
void ReadingSession::beginAnew() {
    promise.forget();
    elapsed.reset(clocks.steady());
    if (isOn()) promise.begin();
}

void ReadingSession::updatePace() {
    if (source) source->setPace(pace());
}

void ReadingSession::promiseAnew() {
    promise.forget();
    if (isOn()) promise.begin();
    updatePace();
}

int ReadingSession::framesPerSecond() const {
    return frames.framesPerSecond(clocks.steady());
}

void ReadingSession::scrollerDidProduceScroll(DisplayLinkScroller&, double deltaY) {
    // Some that were produced before auto-scroll was switched off arrive behind that.
    if (isOn()) advance(-deltaY);
}

void ReadingSession::advance(double points) {
    const auto now = clocks.steady();
    frames.add(now);
    moveBy(points);
    if (!isAtEnd()) {
        if (isOn()) elapsed.start(now); // a soft stop moves the text a little further
        return;
    }
    elapsed.stop(now);
    promise.forget();
    if (onEnd) onEnd();
}

void ReadingSession::beginAgain() {
    moveTo(0);
    beginAnew();
    if (source) source->setPace(pace());
}

bool ReadingSession::isAtEnd() const {
    return readerPosition() >= lastReaderPosition();
}

double ReadingSession::readerPosition() const {
    return views.empty() ? 0.0 : views.front()->readerPosition();
}

double ReadingSession::lastReaderPosition() const {
    return views.empty() ? 0.0 : views.front()->lastReaderPosition();
}

double ReadingSession::topOf(std::size_t paragraph) const {
    return views.empty() ? 0.0 : views.front()->topOf(paragraph);
}

std::optional<ReadingProgress> ReadingSession::progress() const {
    if (views.empty()) return std::nullopt;
    return std::optional<ReadingProgress>(std::in_place, *currentScript, spokenWords,
                                          *views.front());
}

double ReadingSession::wordsRead() const {
    const auto words = progress();
    return words ? words->wordsRead() : 0.0;
}

double ReadingSession::wordsLeft() const {
    const auto words = progress();
    return words ? std::max(words->wordsInAll() - words->wordsRead(), 0.0) : 0.0;
}

double ReadingSession::wordsPerMinute() const {
    const auto words = progress();
    if (!words || !isOn() || isAtEnd()) return 0.0;
    constexpr double secondsPerMinute = 60.0;
    if (options.pace != PaceMode::speed)
        return promise.wordsPerSecond(wordsLeft()) * secondsPerMinute;
    // What passes in a while, as one line more or less is much in a moment.
    constexpr double window = 30.0;
    const double half = pace().pointsPerSecond() * window / 2;
    const double y = readerPosition();
    return (words->wordsAbove(y + half) - words->wordsAbove(y - half)) / window * secondsPerMinute;
}

std::optional<double> ReadingSession::secondsLeft() const {
    if (options.pace != PaceMode::speed) return promise.secondsLeft(wordsLeft());
    const double rest = lastReaderPosition() - readerPosition();
    const double speed = pace().pointsPerSecond();
    if (rest <= 0.0) return 0.0;
    return speed > 0.0 ? std::optional(rest / speed) : std::nullopt;
}

double ReadingSession::secondsLate() const {
    return options.pace == PaceMode::finish ? promise.secondsLate(wordsLeft()) : 0.0;
}

void ReadingSession::tellProgress(PrompterStatus& status) const {
    status.words = wordCount;
    status.time = timeText(seconds);
    status.frameRate = framesPerSecond();
    status.wordsPerMinute = wordsPerMinute();
    status.wordsRead = wordsRead();
    status.secondsLeft = secondsLeft();
    status.secondsElapsed = elapsed.seconds(clocks.steady());
}

} // namespace tessaline
