#pragma once

#include "cli/ControlCommand.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace tessaline {

/// One command to the running prompter, checked. A plain value; any thread.
struct ControlRequest {
    static constexpr double leastSpeed = 0.0;
    static constexpr double mostSpeed = 5.0;
    static constexpr double mostPoints = 10000.0; ///< to scroll by at once

    /// Reads the command's name and what follows it. None when they are wrong; `error`, which may
    /// be null, then says why in one line without a full stop.
    static std::optional<ControlRequest> parse(const QStringList& words, QString* error);

    /// What `parse` reads as this very request.
    QStringList words() const;

    /// The argument as a number, where it is one.
    double number() const;

    ControlCommand command = ControlCommand::status;
    /// A number in plain decimals, or one of the command's choices; empty for commands without.
    QString argument;
    /// What follows that choice: a number, minutes such as "12.5m", a time of day such as "09:30",
    /// or another choice; empty where nothing does.
    QString detail{};

    bool operator==(const ControlRequest&) const = default;
};

} // namespace tessaline
