#include "app/RemoteControl.h"

#include "app/AppDelegate.h"
#include "app/shortcuts/Shortcuts.h"
#include "cli/CommandLine.h"
#include "prompter/PrompterWindow.h"
#include "prompter/view/ScriptView.h"

#include <nlohmann/json.hpp>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

bool worksBeforeTheNormalStart(ControlCommand command) {
    return command == ControlCommand::status || command == ControlCommand::show ||
           command == ControlCommand::quit;
}

} // namespace

RemoteControl::RemoteControl(AppDelegate& borrowed) : delegate(borrowed) {}

void RemoteControl::carryOut(const ControlRequest& request, const Reply& reply) {
    if (!delegate.hasStarted() && !worksBeforeTheNormalStart(request.command))
        return reply({}, u"the first-run window is still open"_s);
    if (request.command == ControlCommand::paste) return paste(reply);
    QString problem;
    const QString answer = answerTo(request, &problem);
    reply(answer, problem);
}

QString RemoteControl::answerTo(const ControlRequest& request, QString* problem) {
    ScriptView& view = delegate.prompter().textView();
    const AppSettings& settings = delegate.currentSettings();
    switch (request.command) {
    case ControlCommand::toggle:
        return setAutoScroll(!settings.autoScrollEnabled);
    case ControlCommand::play:
        return setAutoScroll(true);
    case ControlCommand::pause:
        return setAutoScroll(false);
    case ControlCommand::faster:
        return setSpeed(settings.scrollSpeed + speedStep);
    case ControlCommand::slower:
        return setSpeed(settings.scrollSpeed - speedStep);
    case ControlCommand::speed:
        return setSpeed(request.speed());
    case ControlCommand::rate:
        return chooseRate(request.argument);
    case ControlCommand::up:
        delegate.performScroll(Shortcuts::shortcutScrollStep);
        return position();
    case ControlCommand::down:
        delegate.performScroll(-Shortcuts::shortcutScrollStep);
        return position();
    case ControlCommand::top:
        view.scrollByHand(0);
        return position();
    case ControlCommand::nextHeading:
        view.scrollToNextHeader();
        return position();
    case ControlCommand::previousHeading:
        view.scrollToPreviousHeader();
        return position();
    case ControlCommand::show:
        delegate.reveal();
        return u"shown"_s;
    case ControlCommand::hide:
        delegate.hidePrompterWindow();
        return u"hidden"_s;
    case ControlCommand::minimize:
        return setCollapsed(true);
    case ControlCommand::expand:
        return setCollapsed(false);
    case ControlCommand::settings:
        delegate.showConfig();
        return u"settings shown"_s;
    case ControlCommand::source:
        return chooseSource(request.argument, problem);
    case ControlCommand::quit:
        delegate.quitApp();
        return u"ending"_s;
    case ControlCommand::status:
        return status();
    case ControlCommand::paste:
        break; // has its answer later
    }
    Q_UNREACHABLE();
}

QString RemoteControl::setAutoScroll(bool on) {
    if (delegate.currentSettings().autoScrollEnabled != on) delegate.toggleScroll();
    return on ? u"auto-scroll on"_s : u"auto-scroll off"_s;
}

QString RemoteControl::setSpeed(double speed) {
    delegate.setScrollSpeed(speed);
    return u"speed %1"_s.arg(delegate.currentSettings().scrollSpeed);
}

QString RemoteControl::chooseRate(const QString& rate) {
    if (const auto chosen = scrollRateFromRawValue(rate)) delegate.chooseScrollRate(*chosen);
    return u"rate "_s + rawValue(delegate.currentSettings().scrollRate);
}

QString RemoteControl::chooseSource(const QString& source, QString* problem) {
    const auto chosen = sourceTypeFromRawValue(source);
    if (!chosen || !delegate.chooseSource(*chosen))
        *problem = u"the source '%1' is not enabled in the settings"_s.arg(source);
    return u"source "_s + rawValue(delegate.currentSettings().activeSourceType);
}

QString RemoteControl::setCollapsed(bool collapsed) {
    if (delegate.prompter().isCollapsed() != collapsed) delegate.toggleMinimize();
    return collapsed ? u"minimized"_s : u"expanded"_s;
}

void RemoteControl::paste(const Reply& reply) {
    delegate.pasteFromClipboard([reply](const QString& problem) { reply(u"pasted"_s, problem); });
}

QString RemoteControl::position() const {
    const ScriptView& view = delegate.prompter().textView();
    return u"position %1 of %2"_s.arg(view.scrollPosition(), 0, 'f', 1)
        .arg(view.maximumScrollPosition(), 0, 'f', 1);
}

QString RemoteControl::status() const {
    const PrompterWindow& prompter = delegate.prompter();
    const ScriptView& view = prompter.textView();
    const AppSettings& settings = delegate.currentSettings();
    const nlohmann::ordered_json report = {
        {"version", CommandLine::version().toStdString()},
        {"visible", prompter.isVisible()},
        {"collapsed", prompter.isCollapsed()},
        {"source", rawValue(settings.activeSourceType).toStdString()},
        {"words", prompter.words()},
        {"time", prompter.remainingTime().toStdString()},
        {"scrollPosition", view.scrollPosition()},
        {"maximumScrollPosition", view.maximumScrollPosition()},
        {"speed", settings.scrollSpeed},
        {"rate", rawValue(settings.scrollRate).toStdString()},
        {"autoScroll", settings.autoScrollEnabled},
        {"frameRate", prompter.framesPerSecond()},
    };
    return QString::fromStdString(report.dump());
}

} // namespace tessaline
