#pragma once

#include "app/cli/ControlRequest.h"

#include <QString>

#include <optional>

namespace tessaline {

class AppDelegate;

/// Drives the running program by commands from outside, on the paths that its buttons, menus and
/// shortcuts take. Main thread only.
class RemoteControl {
public:
    /// What a step of `faster` or `slower` changes.
    static constexpr double speedStep = 0.25;

    explicit RemoteControl(AppDelegate& delegate);

    /// The answer for the user, in one line; none when the command cannot be carried out now, with
    /// the reason in `problem`.
    std::optional<QString> carryOut(const ControlRequest& request, QString* problem);

private:
    QString answerTo(const ControlRequest& request, QString* problem);
    QString setAutoScroll(bool on);
    QString setSpeed(double speed);
    QString chooseRate(const QString& rate);
    QString chooseSource(const QString& source, QString* problem);
    QString setCollapsed(bool collapsed);
    QString paste();
    QString position() const;
    QString status() const;

    AppDelegate& delegate;
};

} // namespace tessaline
