#include "app/RemoteCommands.h"

#include "app/AppDelegate.h"
#include "app/RemoteControl.h"
#include "app/ScriptIntake.h"
#include "platform/RunThenPost.h"
#include "settings/TextFile.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

Refusal unreadable(const QString& path, const QString& problem) {
    return {u"cannot read %1: %2"_s.arg(path, problem)};
}

} // namespace

RemoteCommands::RemoteCommands(AppDelegate& borrowed, TaskRunner& runner, MainQueue& queue)
    : delegate(borrowed), taskRunner(runner), mainQueue(queue) {}

void RemoteCommands::carryOut(const RemoteRequest& request, const Reply& reply) {
    if (const auto* open = std::get_if<OpenRequest>(&request)) {
        openFile(*open, reply);
    } else if (const auto* control = std::get_if<ControlRequest>(&request)) {
        RemoteControl(delegate).carryOut(*control, reply);
    } else {
        delegate.reveal();
        reply(delegate.status());
    }
}

void RemoteCommands::openFile(const OpenRequest& request, const Reply& reply) {
    if (!request.path.startsWith(u'/'))
        return reply(unreadable(request.path, u"Not a path from the root"_s));
    const auto finish = lifetime.guard([this, request, reply](const ReadText& found) {
        const QString problem = show(request, found);
        reply(problem.isEmpty() ? RemoteAnswer(delegate.status())
                                : unreadable(request.path, problem));
    });
    runThenPost(taskRunner, mainQueue, readingOf(request), finish);
}

/// Copies are ours, and followed files are looked at again and again: both are UTF-8.
ScriptOpening::Reading RemoteCommands::readingOf(const OpenRequest& request) const {
    if (!request.follow && !request.isCopy) return delegate.opening().readingOf(request.path);
    return [path = request.path] {
        ReadText read;
        read.text = readTextFile(path, ByteOrderMark::drop, &read.problem);
        return read;
    };
}

QString RemoteCommands::show(const OpenRequest& request, const ReadText& read) {
    QString problem;
    if (!read.text || !(request.follow || request.isCopy)) {
        problem = delegate.opening().show(request.path, read);
    } else if (request.follow) {
        delegate.opening().follow(request.path, *read.text);
    } else {
        delegate.scripts().open(*read.text);
    }
    if (problem.isEmpty()) delegate.reveal();
    return problem;
}

} // namespace tessaline
