#include "app/RemoteControl.h"

#include "app/AppDelegate.h"
#include "app/ControlDeeds.h"
#include "app/ReadingCommands.h"
#include "app/ScriptIntake.h"
#include "app/SettingChoices.h"
#include "app/opening/ScriptOpening.h"
#include "app/page/RemotePage.h"
#include "app/shortcuts/Shortcuts.h"
#include "prompter/PrompterWindow.h"
#include "prompter/covers/TextCovers.h"
#include "prompter/view/ScriptView.h"
#include "settings/ReadingSettings.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

bool worksBeforeTheNormalStart(ControlCommand command) {
    return command == ControlCommand::status || command == ControlCommand::show ||
           command == ControlCommand::quit;
}

bool isSwitchedOn(const ControlRequest& request, bool isOn) {
    return request.argument == "toggle"_L1 ? !isOn : request.argument == "on"_L1;
}

} // namespace

RemoteControl::RemoteControl(AppDelegate& borrowed) : delegate(borrowed) {}

void RemoteControl::carryOut(const ControlRequest& request, const Reply& reply) {
    if (!delegate.hasStarted() && !worksBeforeTheNormalStart(request.command))
        return reply(Refusal{u"the first-run window is still open"_s});
    if (request.command == ControlCommand::paste) return paste(reply);
    if (request.command == ControlCommand::latest && request.number() > 0.0)
        return openLatest(std::size_t(request.number()), reply);
    reply(answerTo(request));
}

RemoteAnswer RemoteControl::answerTo(const ControlRequest& request) {
    if (request.command == ControlCommand::source) {
        const auto source = sourceTypeFromRawValue(request.argument);
        if (!source || !delegate.choices().setSource(*source)) {
            return Refusal{
                u"the source '%1' is not enabled in the settings"_s.arg(request.argument)};
        }
    } else if (request.command == ControlCommand::remote) {
        return delegate.remotePage().carryOut(request);
    } else if (request.command == ControlCommand::continueReading) {
        if (!delegate.opening().places().continueReading())
            return Refusal{u"there is no place further on to continue at"_s};
    } else {
        carryOut(request);
    }
    return delegate.status();
}

void RemoteControl::carryOut(const ControlRequest& request) {
    ScriptView& view = delegate.prompter().textView();
    TextCovers& covers = delegate.prompter().covers();
    switch (request.command) {
    case ControlCommand::toggle:
        return delegate.toggleScroll();
    case ControlCommand::play:
        return setAutoScroll(true);
    case ControlCommand::pause:
        return setAutoScroll(false);
    case ControlCommand::faster:
        return stepPace(delegate, PaceStep::faster);
    case ControlCommand::slower:
        return stepPace(delegate, PaceStep::slower);
    case ControlCommand::speed:
        return delegate.choices().setScrollSpeed(request.number());
    case ControlCommand::rate:
        if (const auto rate = scrollRateFromRawValue(request.argument))
            delegate.choices().setScrollRate(*rate);
        return;
    case ControlCommand::up:
        return delegate.performScroll(Shortcuts::shortcutScrollStep);
    case ControlCommand::down:
        return delegate.performScroll(-Shortcuts::shortcutScrollStep);
    case ControlCommand::scroll:
        return delegate.performScroll(-request.number());
    case ControlCommand::top:
        return view.jumps().toTop();
    case ControlCommand::nextHeading:
        view.jumps().toNextHeading();
        return;
    case ControlCommand::previousHeading:
        view.jumps().toPreviousHeading();
        return;
    case ControlCommand::heading:
        view.jumps().toHeadingNumber(int(request.number()));
        return;
    case ControlCommand::paragraph:
        return view.jumps().toParagraphNumber(std::size_t(request.number()));
    case ControlCommand::black:
        return covers.setBlack(isSwitchedOn(request, covers.isBlack()));
    case ControlCommand::keys:
        return covers.setShowsKeys(isSwitchedOn(request, covers.showsKeys()));
    case ControlCommand::show:
        return delegate.reveal();
    case ControlCommand::hide:
        return delegate.hidePrompterWindow();
    case ControlCommand::minimize:
        return setCollapsed(true);
    case ControlCommand::expand:
        return setCollapsed(false);
    case ControlCommand::settings:
        return delegate.showConfig();
    case ControlCommand::reading:
        return delegate.showReading();
    case ControlCommand::pace:
    case ControlCommand::guide:
    case ControlCommand::eyeLine:
    case ControlCommand::countdown:
    case ControlCommand::atEnd:
    case ControlCommand::glide:
    case ControlCommand::mediaKeys:
    case ControlCommand::mirror:
    case ControlCommand::opacity:
    case ControlCommand::clickThrough:
    case ControlCommand::font:
    case ControlCommand::lineSpacing:
    case ControlCommand::distance:
        return delegate.reading().change(
            [&request](ReadingOptions& options) { takeOver(request, options); });
    case ControlCommand::suggest:
        delegate.takeSuggestedSize();
        return;
    case ControlCommand::quit:
        return delegate.quitApp();
    case ControlCommand::open:
        return delegate.opening().choose();
    case ControlCommand::latest:
        if (request.argument == "clear"_L1) delegate.opening().latest().clear();
        return;
    case ControlCommand::source:
    case ControlCommand::continueReading:
    case ControlCommand::remote:
    case ControlCommand::paste: // which may be refused
    case ControlCommand::status:
        return;
    }
}

void RemoteControl::setAutoScroll(bool on) {
    if (delegate.currentSettings().autoScrollEnabled() != on) delegate.toggleScroll();
}

void RemoteControl::setCollapsed(bool collapsed) {
    if (delegate.prompter().isCollapsed() != collapsed) delegate.toggleMinimize();
}

void RemoteControl::paste(const Reply& reply) {
    delegate.scripts().paste([reply, &delegate = delegate](const QString& problem) {
        reply(problem.isEmpty() ? RemoteAnswer(delegate.status()) : Refusal{problem});
    });
}

/// Only the one that is asked for is touched: the others may lie on drives that do not answer.
void RemoteControl::openLatest(std::size_t number, const Reply& reply) {
    const auto& latest = delegate.opening().latest().all();
    if (number > latest.size())
        return reply(Refusal{u"there are only %1 latest scripts"_s.arg(latest.size())});
    const QString path = latest[number - 1].path;
    delegate.opening().open(path, [reply, path, &delegate = delegate](const QString& problem) {
        reply(problem.isEmpty() ? RemoteAnswer(delegate.status())
                                : Refusal{u"cannot read %1: %2"_s.arg(path, problem)});
    });
}

} // namespace tessaline
