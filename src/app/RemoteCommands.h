#pragma once

#include "app/cli/ControlRequest.h"

#include <QJsonObject>
#include <QString>

namespace tessaline {

class AppDelegate;

/// Carries out what a later command line asks the running program for. Main thread only.
class RemoteCommands {
public:
    /// Brings the program to the front.
    static QJsonObject show();
    /// The same, with the text of a file, given by its absolute path, and followed if wished.
    static QJsonObject open(const QString& path, bool follow);
    /// Drives the prompter.
    static QJsonObject control(const ControlRequest& request);

    explicit RemoteCommands(AppDelegate& delegate);

    /// The answer: "ok" tells whether it was done, "text" what is to be said then, "error" why it
    /// was not, each in one line.
    QJsonObject carryOut(const QJsonObject& message);

private:
    QJsonObject openFile(const QString& path, bool follow);
    QJsonObject drive(const QJsonObject& message);

    AppDelegate& delegate;
};

} // namespace tessaline
