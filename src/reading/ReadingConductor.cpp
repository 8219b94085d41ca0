#include "reading/ReadingConductor.h"

#include "platform/Platform.h"
#include "reading/AutoScroll.h"
#include "reading/ReadingSession.h"
#include "reading/pace/PacedScroll.h"
#include "settings/AppSettings.h"

namespace tessaline {

ReadingConductor::ReadingConductor(AppSettings& borrowedSettings, ReadingSettings& borrowedOptions,
                                   const std::shared_ptr<ReadingSession>& reading,
                                   const Platform& borrowedPlatform)
    : settings(borrowedSettings)
    , options(borrowedOptions)
    , session(reading)
    , platform(borrowedPlatform)
    , observation(
          options.observe([this](const ReadingOptions& before) { optionsChanged(before); })) {
    session->onEnd = [this] { endReached(); };
    session->setSource(sourceForPace());
}

ReadingConductor::~ReadingConductor() {
    session->onEnd = {};
    session->setSource(nullptr);
}

std::unique_ptr<PositionSource> ReadingConductor::sourceForPace() const {
    if (options.values().pace == PaceMode::speed) {
        return std::make_unique<AutoScroll>(session, *platform.displayLinks, *platform.timers,
                                            *platform.mainQueue);
    }
    return std::make_unique<PacedScroll>(*session, *platform.displayLinks, *platform.timers,
                                         *platform.mainQueue, Clocks{});
}

void ReadingConductor::optionsChanged(const ReadingOptions& before) {
    const ReadingOptions& now = options.values();
    if (now.pace == before.pace && now.wordsPerMinute == before.wordsPerMinute &&
        now.finishMinutes == before.finishMinutes && now.finishAt == before.finishAt)
        return;
    // Other minutes count from the same beginning, so that a step on the way is no new start.
    if (now.pace == before.pace && now.finishAt == before.finishAt) return session->updatePace();
    if ((now.pace == PaceMode::speed) != (before.pace == PaceMode::speed))
        session->setSource(sourceForPace());
    session->promiseAnew();
}

void ReadingConductor::endReached() {
    switch (options.values().atEnd) {
    case ScriptEnd::stand:
        return;
    case ScriptEnd::stop:
        if (settings.autoScrollEnabled()) settings.setAutoScrollEnabled(false);
        return;
    case ScriptEnd::goRound:
        session->beginAgain();
    }
}

} // namespace tessaline
