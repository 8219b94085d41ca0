#pragma once

#include "cli/ControlRequest.h"
#include "cli/RenderRequest.h"

#include <QStringList>

#include <optional>
#include <variant>

namespace tessaline {

/// What the program is asked to do by its arguments.
struct CommandLine {
    /// Print a text on standard output and end.
    struct Print {
        QString text;
        bool operator==(const Print&) const = default;
    };

    /// Report a mistake in the arguments and end with `ExitStatus::usage`.
    struct Mistake {
        QString message; ///< one line
        bool operator==(const Mistake&) const = default;
    };

    /// Show the prompter, with a script if there is a path ("-" for standard input).
    struct Show {
        std::optional<QString> input;
        bool follow = false; ///< show the file, of which there is one, again whenever it changes
        bool operator==(const Show&) const = default;
    };

    using Request = std::variant<Show, RenderRequest, ControlRequest, Print, Mistake>;

    /// Reads the arguments, without the program's name. Needs no application object; any thread.
    static Request parse(const QStringList& arguments);

    /// The program's version, such as "1.2.3".
    static QString version();
};

} // namespace tessaline
