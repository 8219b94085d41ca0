#include "app/KeyDeeds.h"

#include "app/AppDelegate.h"
#include "prompter/PrompterKey.h"
#include "prompter/PrompterWindow.h"
#include "prompter/covers/TextCovers.h"
#include "prompter/view/ScriptView.h"

#include <QTime>

namespace tessaline {

namespace {

ReadingGuide guideAfter(ReadingGuide guide) {
    switch (guide) {
    case ReadingGuide::none:
        return ReadingGuide::marker;
    case ReadingGuide::marker:
        return ReadingGuide::band;
    case ReadingGuide::band:
        break;
    }
    return ReadingGuide::none;
}

} // namespace

void stepPace(AppDelegate& delegate, PaceStep step) {
    ReadingSettings& reading = delegate.reading();
    if (reading.values().pace == PaceMode::speed) {
        const double change = step == PaceStep::faster ? speedStep : -speedStep;
        return delegate.setScrollSpeed(delegate.currentSettings().scrollSpeed() + change);
    }
    reading.change(
        [step](ReadingOptions& options) { stepPace(options, step, QTime::currentTime()); });
}

void carryOut(const PrompterKey& key, AppDelegate& delegate) {
    using Deed = PrompterKey::Deed;
    const PrompterWindow& prompter = delegate.prompter();
    TextCovers& covers = prompter.covers();
    switch (key.deed) {
    case Deed::startOrStop:
        return delegate.toggleScroll();
    case Deed::faster:
        return stepPace(delegate, PaceStep::faster);
    case Deed::slower:
        return stepPace(delegate, PaceStep::slower);
    case Deed::toHeading:
        prompter.textView().jumps().toHeadingNumber(key.heading);
        return;
    case Deed::black:
        return covers.setBlack(!covers.isBlack());
    case Deed::mirror:
        return delegate.reading().change([](ReadingOptions& options) {
            const bool isMirrored = options.mirror != Mirroring::none;
            options.mirror = isMirrored ? Mirroring::none : Mirroring::horizontal;
        });
    case Deed::guide:
        return delegate.reading().change(
            [](ReadingOptions& options) { options.guide = guideAfter(options.guide); });
    case Deed::keys:
        return covers.setShowsKeys(!covers.showsKeys());
    }
}

} // namespace tessaline
