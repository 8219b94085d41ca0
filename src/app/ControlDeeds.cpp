#include "app/ControlDeeds.h"

#include "app/AppDelegate.h"
#include "app/SettingChoices.h"
#include "prompter/ControlStrip.h"
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

} // namespace

void stepPace(AppDelegate& delegate, PaceStep step) {
    ReadingSettings& reading = delegate.reading();
    if (reading.values().pace == PaceMode::speed) {
        const double change = step == PaceStep::faster ? speedStep : -speedStep;
        return delegate.choices().setScrollSpeed(delegate.currentSettings().scrollSpeed() + change);
    }
    reading.change(
        [step](ReadingOptions& options) { stepPace(options, step, QTime::currentTime()); });
}

void connectControls(AppDelegate& delegate) {
    const PrompterWindow& prompter = delegate.prompter();
    const ControlStrip& strip = prompter.controls();
    const auto wire = [&](void (ControlStrip::*pressed)(), void (AppDelegate::*action)()) {
        QObject::connect(&strip, pressed, &strip, [&delegate, action] { (delegate.*action)(); });
    };
    wire(&ControlStrip::configPressed, &AppDelegate::showConfig);
    wire(&ControlStrip::autoScrollPressed, &AppDelegate::toggleScroll);
    wire(&ControlStrip::minimizePressed, &AppDelegate::toggleMinimize);
    wire(&ControlStrip::pastePressed, &AppDelegate::cycleSource);
    // It hides only: the program ends from the status menu.
    wire(&ControlStrip::quitPressed, &AppDelegate::hidePrompterWindow);
    QObject::connect(&prompter, &PrompterWindow::keyPressed, &prompter,
                     [&delegate](const PrompterKey& key) { carryOut(key, delegate); });
}

} // namespace tessaline
