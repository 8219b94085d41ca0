#include "cli/HelpText.h"

#include "cli/CommandTable.h"

#include <QStringList>

#include <algorithm>
#include <vector>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// An entry of a list whose term is put together here.
struct Entry {
    QString term;
    QStringView text;
};

/// Longer terms stand on a line of their own, as their explanation would not fit a terminal.
constexpr qsizetype widestTerm = 28;

QString usageLine(const CommandSpec& spec) {
    QString line = u"tessaline "_s;
    if (!spec.name.isEmpty()) line += spec.name.toString() + u' ';
    return line + spec.usage.toString() + u'\n';
}

QString optionTerm(const CommandOption& option) {
    QString term = option.letter ? u"-%1, "_s.arg(QChar(option.letter)) : u"    "_s;
    term += "--"_L1 + option.name.toString();
    if (option.value.isTaken()) term += u' ' + option.value.name.toString();
    return term;
}

QString actionTerm(const ControlAction& action) {
    QString term = action.name.toString();
    if (action.value.isTaken()) term += u' ' + action.value.name.toString();
    return term;
}

/// Two columns; further lines of an explanation begin below its first.
QString list(QStringView heading, const std::vector<Entry>& entries) {
    qsizetype width = 0;
    for (const Entry& entry : entries) {
        if (entry.term.size() <= widestTerm) width = std::max(width, entry.term.size());
    }
    QString text = heading.toString() + ":\n"_L1;
    for (const auto& [term, explanation] : entries) {
        QString left = term;
        if (explanation.isEmpty() || term.size() > widestTerm) {
            text += "  "_L1 + term + u'\n';
            left.clear();
        }
        for (const QStringView line : explanation.tokenize(u'\n', Qt::SkipEmptyParts)) {
            text += "  "_L1 + left.leftJustified(width) + "  "_L1 + line.toString() + u'\n';
            left.clear();
        }
    }
    return text;
}

/// What `entryOf` makes of each item, as a list.
template <typename Items, typename EntryOf>
QString listOf(QStringView heading, const Items& items, const EntryOf& entryOf) {
    std::vector<Entry> entries;
    for (const auto& item : items)
        entries.push_back(entryOf(item));
    return list(heading, entries);
}

} // namespace

QString helpText(const CommandSpec& spec) {
    const bool isProgram = spec.name.isEmpty();
    QString text = "Usage: "_L1 + usageLine(spec);
    if (isProgram) {
        for (const CommandSpec& command : commandSpecs())
            text += "       "_L1 + usageLine(command);
    }
    QStringList parts{text, spec.description.toString()};
    if (isProgram) {
        parts += listOf(u"Commands", commandSpecs(), [](const CommandSpec& command) {
            return Entry{command.name.toString(), command.summary};
        });
    }
    if (!spec.actions.empty()) {
        parts += listOf(u"Commands", spec.actions, [](const ControlAction& action) {
            return Entry{actionTerm(action), action.help};
        });
    }
    parts += listOf(u"Options", spec.options, [](const CommandOption& option) {
        return Entry{optionTerm(option), option.help};
    });
    if (!spec.notes.isEmpty()) parts += spec.notes.toString();
    for (const HelpSection& section : spec.sections) {
        parts += listOf(section.heading, section.entries, [](const HelpEntry& entry) {
            return Entry{entry.term.toString(), entry.text};
        });
    }
    return parts.join(u'\n');
}

} // namespace tessaline
