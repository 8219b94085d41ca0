#pragma once

#include "cli/ControlRequest.h"

#include <QString>

#include <functional>

namespace tessaline {

class AppDelegate;

/// Drives the running program by commands from outside, on the paths that its buttons, menus and
/// shortcuts take. Main thread only.
class RemoteControl {
public:
    /// What a step of `faster` or `slower` changes.
    static constexpr double speedStep = 0.25;

    explicit RemoteControl(AppDelegate& delegate);

    /// Gets the answer for the user, in one line, or why the command could not be carried out: then
    /// `problem` is not empty.
    using Reply = std::function<void(const QString& answer, const QString& problem)>;

    /// Replies at once or, where another program has to be asked, later, when this may be gone.
    void carryOut(const ControlRequest& request, const Reply& reply);

private:
    QString answerTo(const ControlRequest& request, QString* problem);
    QString setAutoScroll(bool on);
    QString setSpeed(double speed);
    QString chooseRate(const QString& rate);
    QString chooseSource(const QString& source, QString* problem);
    QString setCollapsed(bool collapsed);
    void paste(const Reply& reply);
    QString position() const;
    QString status() const;

    AppDelegate& delegate;
};

} // namespace tessaline
