#include "app/page/PageFeed.h"

#include "app/AppDelegate.h"
#include "cli/ControlAnswer.h"
#include "prompter/PrompterWindow.h"
#include "prompter/covers/TextCovers.h"
#include "reading/ReadingSession.h"

#include <QTime>

#include <algorithm>
#include <cmath>

namespace tessaline {

namespace {

QString paceText(AppDelegate& delegate) {
    PrompterStatus status;
    status.speed = delegate.currentSettings().scrollSpeed();
    tellOptions(delegate.reading().values(), QTime::currentTime(), status);
    return controlAnswer({ControlCommand::pace, {}}, status);
}

} // namespace

PageFeed::PageFeed(AppDelegate& owner) : delegate(owner) {}

PageState PageFeed::state() {
    const PrompterWindow& prompter = delegate.prompter();
    const ReadingSession& session = prompter.reading();
    pageScript.show(session.script());
    PageState state;
    state.moves = delegate.currentSettings().autoScrollEnabled();
    state.isSeen = prompter.isVisible();
    state.isBlack = prompter.covers().isBlack();
    state.pace = delegate.reading().values().pace;
    state.paceText = paceText(delegate);
    if (const auto seconds = session.secondsLeft()) state.secondsLeft = std::round(*seconds);
    state.scriptVersion = pageScript.version();
    state.paragraphs = qint64(pageScript.paragraphs());
    state.paragraph = qint64(session.place().paragraph);
    state.fraction = std::clamp(session.place().fraction, 0.0, 1.0);
    return state;
}

} // namespace tessaline
