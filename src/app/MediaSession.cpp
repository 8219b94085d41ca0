#include "app/MediaSession.h"

#include "app/AppDelegate.h"
#include "app/SettingChoices.h"
#include "platform/Platform.h"
#include "platform/TimerMaker.h"
#include "prompter/PrompterWindow.h"
#include "prompter/view/ScriptView.h"
#include "reading/ReadingSession.h"

#include <algorithm>
#include <cmath>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr TimerMaker::Interval lookInterval{1.0};
constexpr double noticedJump = 2.0; // seconds
constexpr double secondsPerMinute = 60.0;

QString titleOf(const Script& script) {
    for (std::size_t i = 0; i < script.paragraphs.size(); ++i) {
        if (script.headingLevel(i) == 0) continue;
        const bool isLast = i + 1 == script.paragraphs.size();
        const qsizetype end = isLast ? script.length() : script.paragraphs[i + 1].start;
        return script.text(script.paragraphs[i].start, end).simplified();
    }
    return u"Script"_s;
}

} // namespace

MediaSession::MediaSession(AppDelegate& owner, AppSettings& settings, const Platform& platform)
    : delegate(owner)
    , controls(*platform.media)
    , timers(*platform.timers)
    , settingsObservation(settings.observe([this](const PersistedSettings&) { update(); }))
    , readingObservation(
          owner.reading().observe([this](const ReadingOptions&) { optionsChanged(); })) {
    optionsChanged();
}

MediaSession::~MediaSession() {
    withdraw();
}

void MediaSession::optionsChanged() {
    if (!delegate.reading().values().mediaKeys) {
        timer.reset();
        return withdraw();
    }
    // Texts, hiding, and hands that move the text announce themselves to nobody.
    if (!timer) timer = timers.every(lookInterval, [this] { look(); });
    update();
}

void MediaSession::withdraw() {
    if (!shown) return;
    shown.reset();
    controls.withdraw();
}

void MediaSession::update() {
    if (!timer) return;
    if (!delegate.prompter().showsScript()) return withdraw();
    updateTitle();
    const MediaControls::Playing now = playing();
    if (shown == now) return;
    if (!shown) lastPlayed = times().played;
    shown = now;
    controls.show(now, *this);
}

/// What a widget shows it counts on by itself, unless it is told better.
void MediaSession::look() {
    update();
    if (!shown) return;
    const double played = times().played;
    const double expected = lastPlayed + (shown->moves ? shown->rate * lookInterval.count() : 0.0);
    if (std::abs(played - expected) > noticedJump) controls.tellJump();
    lastPlayed = played;
}

void MediaSession::updateTitle() {
    const auto& script = delegate.prompter().reading().script();
    if (script == titled) return;
    titled = script;
    title = titleOf(*script);
}

MediaControls::Playing MediaSession::playing() const {
    MediaControls::Playing playing{.title = title,
                                   .moves = delegate.currentSettings().autoScrollEnabled(),
                                   .seconds = std::round(times().whole),
                                   .rate = rate()};
    switch (delegate.reading().values().pace) {
    case PaceMode::speed:
        playing.leastRate = leastSpeed / usualSpeed;
        playing.mostRate = PersistedSettings::maxScrollSpeed / usualSpeed;
        break;
    case PaceMode::words:
        playing.leastRate = ReadingOptions::leastWordsPerMinute / usualWordsPerMinute;
        playing.mostRate = ReadingOptions::mostWordsPerMinute / usualWordsPerMinute;
        break;
    case PaceMode::finish:
        break; // is as fast as it takes
    }
    return playing;
}

double MediaSession::rate() const {
    const ReadingOptions& options = delegate.reading().values();
    const AppSettings& settings = delegate.currentSettings();
    switch (options.pace) {
    case PaceMode::speed:
        return (settings.scrollSpeed() > 0.0 ? settings.scrollSpeed()
                                             : settings.lastNonZeroScrollSpeed()) /
               usualSpeed;
    case PaceMode::words:
        return options.wordsPerMinute / usualWordsPerMinute;
    case PaceMode::finish:
        break;
    }
    return 1.0;
}

void MediaSession::setRate(double rate) {
    switch (delegate.reading().values().pace) {
    case PaceMode::speed:
        return delegate.choices().setScrollSpeed(rate * usualSpeed);
    case PaceMode::words:
        return delegate.reading().change([rate](ReadingOptions& options) {
            options.wordsPerMinute = rate * usualWordsPerMinute;
        });
    case PaceMode::finish:
        return;
    }
}

MediaSession::Times MediaSession::times() const {
    const PrompterStatus status = delegate.status();
    const double left = status.secondsLeft.value_or(0.0);
    switch (status.pace) {
    case PaceMode::words: {
        const double played = status.wordsRead / usualWordsPerMinute * secondsPerMinute;
        return {played, played + left * rate()};
    }
    case PaceMode::finish:
        return {status.secondsElapsed, status.secondsElapsed + left};
    case PaceMode::speed:
        break;
    }
    const double room = status.maximumScrollPosition - status.scrollPosition;
    const bool isKnown = status.secondsLeft && room > 0.0;
    const double whole = isKnown ? left * rate() * status.maximumScrollPosition / room
                                 : delegate.prompter().reading().readingSeconds();
    return {whole * status.scrollPosition / std::max(status.maximumScrollPosition, 1.0), whole};
}

double MediaSession::secondsPlayed() const {
    return times().played;
}

void MediaSession::goTo(double seconds) {
    ScriptView& view = delegate.prompter().textView();
    const double share = std::clamp(seconds / std::max(times().whole, 1.0), 0.0, 1.0);
    view.scrollTo(share * view.maximumScrollPosition());
}

void MediaSession::setAutoScroll(bool on) {
    if (delegate.currentSettings().autoScrollEnabled() != on) delegate.toggleScroll();
}

void MediaSession::carryOut(const MediaControls::Wish& wish) {
    using Deed = MediaControls::Wish::Deed;
    ScriptJumps& jumps = delegate.prompter().textView().jumps();
    switch (wish.deed) {
    case Deed::play:
        return setAutoScroll(true);
    case Deed::pause:
        return setAutoScroll(false);
    case Deed::playOrPause:
        return delegate.toggleScroll();
    case Deed::stop:
        setAutoScroll(false);
        return jumps.toTop();
    case Deed::next:
        jumps.toNextHeading();
        return;
    case Deed::previous:
        jumps.toPreviousHeading();
        return;
    case Deed::moveBy:
        return goTo(times().played + wish.number);
    case Deed::goTo:
        return goTo(wish.number);
    case Deed::setRate:
        return setRate(wish.number);
    case Deed::show:
        return delegate.reveal();
    case Deed::quit:
        return delegate.quitApp();
    }
}

} // namespace tessaline
