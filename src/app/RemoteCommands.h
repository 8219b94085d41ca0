#pragma once

#include "cli/ControlRequest.h"
#include "platform/Lifetime.h"

#include <QJsonObject>
#include <QString>

#include <functional>

namespace tessaline {

class AppDelegate;
class MainQueue;
class TaskRunner;

/// Carries out what a later command line asks the running program for. Main thread only.
class RemoteCommands {
public:
    /// Brings the program to the front.
    static QJsonObject show();
    /// The same, with the text of a file, given by its absolute path, and followed if wished.
    static QJsonObject open(const QString& path, bool follow);
    /// Drives the prompter.
    static QJsonObject control(const ControlRequest& request);

    /// Gets the answer: "ok" tells whether it was done, "text" what is to be said then, "error" why
    /// it was not, each in one line.
    using Reply = std::function<void(const QJsonObject& answer)>;

    /// Borrows everything. The runner reads files: nothing else waits behind one that hangs.
    RemoteCommands(AppDelegate& delegate, TaskRunner& taskRunner, MainQueue& mainQueue);

    /// Replies once it is done: at once or, where a file or the clipboard has to be read, later.
    /// Not at all when this is gone by then.
    void carryOut(const QJsonObject& message, const Reply& reply);

private:
    QJsonObject answerTo(const QJsonObject& message);
    void openFile(const QString& path, bool follow, const Reply& reply);
    void showFile(const QString& path, const QString& text, bool follow);
    void drive(const QJsonObject& message, const Reply& reply);

    AppDelegate& delegate;
    TaskRunner& taskRunner;
    MainQueue& mainQueue;
    Lifetime lifetime;
};

} // namespace tessaline
