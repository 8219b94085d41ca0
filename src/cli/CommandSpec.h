#pragma once

#include "cli/ControlCommand.h"

#include <QStringView>

#include <algorithm>
#include <cstdint>
#include <span>

namespace tessaline {

/// What an option or an action takes, as the parser, the help and the completions know it.
struct CommandValue {
    enum class Kind : std::uint8_t {
        text, ///< anything, or one of the choices where there are any
        file,
        number, ///< a number within the limits, or one of the choices
        phrase, ///< all that follows, as one text
        finish, ///< minutes within the limits, such as "12m", or a time of day, such as "15:30"
    };

    QStringView name;                     ///< how the help calls it; empty: nothing is taken
    std::span<const QStringView> choices; ///< words that it may be
    Kind kind = Kind::text;
    double least = 0.0;
    double most = 0.0;
    bool isWhole = false; ///< no fraction is allowed
    bool isOptional = false;

    bool isTaken() const { return !name.isEmpty(); }
};

/// What follows one of the choices of an action.
struct ChoiceTail {
    QStringView choice;
    CommandValue value; ///< may be left out
};

/// An option as the parser and the help both know it.
struct CommandOption {
    QStringView name; ///< without its dashes
    CommandValue value;
    QStringView help;    ///< one or more lines
    char16_t letter = 0; ///< the short form; 0: there is none
};

/// A command to the running prompter as the parser, the help and the completions know it.
struct ControlAction {
    ControlCommand command;
    QStringView name;
    CommandValue value;
    QStringView help; ///< one line
    std::span<const ChoiceTail> tails{};
};

/// A term of a list with its explanation.
struct HelpEntry {
    QStringView term;
    QStringView text; ///< one or more lines; may be empty
};

/// A list behind the options of a help.
struct HelpSection {
    QStringView heading;
    std::span<const HelpEntry> entries;
};

/// A command as the parser, the help, the manual and the completions know it.
struct CommandSpec {
    QStringView name;        ///< empty: the program itself
    QStringView usage;       ///< what follows the name, as the help shows it
    QStringView summary;     ///< what the program's help says about it, one or more lines
    QStringView description; ///< the first paragraphs of its own help
    QStringView notes;       ///< paragraphs behind the options; may be empty
    std::span<const CommandOption> options;
    std::span<const ControlAction> actions; ///< what its first operand may be; empty: a file
    std::span<const HelpSection> sections;
    qsizetype leastOperands = 0;
    qsizetype mostOperands = 0;
};

/// The one of this name; null when there is none.
template <typename Entry>
const Entry* entryNamed(std::span<const Entry> entries, QStringView name) {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const Entry& entry) { return entry.name == name; });
    return found == entries.end() ? nullptr : &*found;
}

} // namespace tessaline
