#include "reading/ReadingSession.h"

#include "reading/PositionSource.h"
#include "reading/ScriptChange.h"
#include "settings/PersistedSettings.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace tessaline {

ReadingSession::ReadingSession(const PersistedSettings& borrowedSettings,
                               const ReadingOptions& borrowedOptions)
    : settings(borrowedSettings)
    , options(borrowedOptions)
    , currentScript(std::make_shared<const Script>()) {}

ReadingSession::~ReadingSession() = default;

void ReadingSession::setContent(RenderedContent content) {
    wordCount = content.wordCount;
    const auto before = std::exchange(currentScript, std::move(content.script));
    const ScriptChange change = ScriptChange::between(*before, *currentScript);
    const auto kept = placeAfter(change, before->paragraphs.size());
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

void ReadingSession::start() {
    if (source && !held) source->start();
}

void ReadingSession::setHeld(bool hold) {
    if (std::exchange(held, hold) == hold) return;
    if (hold) return stop();
    if (settings.autoScrollEnabled) start();
}

void ReadingSession::stop() {
    if (source) source->stop();
}

void ReadingSession::updatePace() {
    if (source) source->setPace(pace());
}

int ReadingSession::framesPerSecond() const {
    return frames.framesPerSecond(std::chrono::steady_clock::now());
}

void ReadingSession::scrollerDidProduceScroll(DisplayLinkScroller&, double deltaY) {
    // Some that were produced before auto-scroll was switched off arrive behind that.
    if (!settings.autoScrollEnabled) return;
    frames.add(std::chrono::steady_clock::now());
    moveBy(-deltaY);
}

} // namespace tessaline
