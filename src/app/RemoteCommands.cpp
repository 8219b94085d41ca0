#include "app/RemoteCommands.h"

#include "app/AppDelegate.h"
#include "app/RemoteControl.h"
#include "platform/MainQueue.h"
#include "platform/TaskRunner.h"
#include "settings/TextFile.h"

#include <QJsonArray>

#include <optional>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

QJsonObject done() {
    return {{u"ok"_s, true}};
}

QJsonObject failed(const QString& reason) {
    return {{u"ok"_s, false}, {u"error"_s, reason}};
}

} // namespace

QJsonObject RemoteCommands::show() {
    return {{u"command"_s, u"show"_s}};
}

QJsonObject RemoteCommands::open(const QString& path, bool follow) {
    return {{u"command"_s, u"open"_s}, {u"path"_s, path}, {u"follow"_s, follow}};
}

QJsonObject RemoteCommands::control(const ControlRequest& request) {
    return {{u"command"_s, u"control"_s},
            {u"words"_s, QJsonArray::fromStringList(request.words())}};
}

RemoteCommands::RemoteCommands(AppDelegate& borrowed, TaskRunner& runner, MainQueue& queue)
    : delegate(borrowed), taskRunner(runner), mainQueue(queue) {}

void RemoteCommands::carryOut(const QJsonObject& message, const Reply& reply) {
    if (message.value("command"_L1) == "open"_L1) {
        openFile(message.value("path"_L1).toString(), message.value("follow"_L1).toBool(), reply);
    } else if (message.value("command"_L1) == "control"_L1) {
        drive(message, reply);
    } else {
        reply(answerTo(message));
    }
}

QJsonObject RemoteCommands::answerTo(const QJsonObject& message) {
    const QString command = message.value("command"_L1).toString();
    if (command != "show"_L1) return failed(u"there is no command '%1'"_s.arg(command));
    delegate.reveal();
    return done();
}

void RemoteCommands::openFile(const QString& path, bool follow, const Reply& reply) {
    if (!path.startsWith(u'/')) {
        reply(failed(u"cannot read %1: Not a path from the root"_s.arg(path)));
        return;
    }
    const auto finish = lifetime.guard(
        [this, path, follow, reply](const std::optional<QString>& text, const QString& problem) {
            if (text) showFile(path, *text, follow);
            reply(text ? done() : failed(u"cannot read %1: %2"_s.arg(path, problem)));
        });
    taskRunner.run([&queue = mainQueue, path, finish] {
        QString problem;
        auto text = readTextFile(path, ByteOrderMark::drop, &problem);
        queue.post([finish, problem, text = std::move(text)] { finish(text, problem); });
    });
}

void RemoteCommands::showFile(const QString& path, const QString& text, bool follow) {
    if (follow) {
        delegate.followFile(path, text);
    } else {
        delegate.openText(text);
    }
    delegate.reveal();
}

void RemoteCommands::drive(const QJsonObject& message, const Reply& reply) {
    QStringList words;
    for (const auto& word : message.value("words"_L1).toArray())
        words += word.toString();
    QString problem;
    const auto request = ControlRequest::parse(words, &problem);
    if (!request) return reply(failed(problem));
    RemoteControl(delegate).carryOut(*request,
                                     [reply](const QString& answer, const QString& reason) {
                                         if (!reason.isEmpty()) return reply(failed(reason));
                                         QJsonObject result = done();
                                         result.insert(u"text"_s, answer);
                                         reply(result);
                                     });
}

} // namespace tessaline
