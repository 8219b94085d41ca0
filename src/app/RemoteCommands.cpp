#include "app/RemoteCommands.h"

#include "app/AppDelegate.h"
#include "app/RemoteControl.h"
#include "app/ScriptIntake.h"
#include "platform/RunThenPost.h"
#include "settings/TextFile.h"

#include <optional>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

struct FoundText {
    std::optional<QString> text;
    QString problem; ///< why there is none
};

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
    const auto finish = lifetime.guard([this, request, reply](const FoundText& found) {
        if (!found.text) return reply(unreadable(request.path, found.problem));
        showFile(request, *found.text);
        reply(delegate.status());
    });
    const auto read = [path = request.path] {
        FoundText found;
        found.text = readTextFile(path, ByteOrderMark::drop, &found.problem);
        return found;
    };
    runThenPost(taskRunner, mainQueue, read, finish);
}

void RemoteCommands::showFile(const OpenRequest& request, const QString& text) {
    if (request.follow) {
        delegate.scripts().follow(request.path, text);
    } else {
        delegate.scripts().open(text);
    }
    delegate.reveal();
}

} // namespace tessaline
