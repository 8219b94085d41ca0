#include "app/RemoteCommands.h"

#include "app/AppDelegate.h"
#include "app/RemoteControl.h"
#include "app/cli/TextInput.h"

#include <QFileInfo>
#include <QJsonArray>

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

RemoteCommands::RemoteCommands(AppDelegate& borrowed) : delegate(borrowed) {}

QJsonObject RemoteCommands::carryOut(const QJsonObject& message) {
    const QString command = message.value("command"_L1).toString();
    if (command == "open"_L1)
        return openFile(message.value("path"_L1).toString(), message.value("follow"_L1).toBool());
    if (command == "control"_L1) return drive(message);
    if (command != "show"_L1) return failed(u"there is no command '%1'"_s.arg(command));
    delegate.reveal();
    return done();
}

QJsonObject RemoteCommands::openFile(const QString& path, bool follow) {
    // Anything but a file of its own could keep the prompter waiting.
    if (!path.startsWith(u'/') || !QFileInfo(path).isFile())
        return failed(u"cannot read %1: Not a file"_s.arg(path));
    QString error;
    const auto text = readTextInput(path, &error);
    if (!text) return failed(error);
    if (follow) {
        delegate.followFile(path, *text);
    } else {
        delegate.openText(*text);
    }
    delegate.reveal();
    return done();
}

QJsonObject RemoteCommands::drive(const QJsonObject& message) {
    QStringList words;
    for (const auto& word : message.value("words"_L1).toArray())
        words += word.toString();
    QString problem;
    const auto request = ControlRequest::parse(words, &problem);
    if (!request) return failed(problem);
    const auto answer = RemoteControl(delegate).carryOut(*request, &problem);
    if (!answer) return failed(problem);
    QJsonObject result = done();
    result.insert(u"text"_s, *answer);
    return result;
}

} // namespace tessaline
