#include "app/cli/HelpText.h"

#include "app/cli/CommandTable.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A list's terms with their explanations.
using Entries = std::vector<std::pair<QString, QStringView>>;

QString usageLine(const CommandSpec& spec) {
    QString line = u"tessaline "_s;
    if (!spec.name.isEmpty()) line += spec.name.toString() + u' ';
    return line + spec.usage.toString() + u'\n';
}

QString optionTerm(const CommandOption& option) {
    QString term = option.letter ? u"-%1, "_s.arg(QChar(option.letter)) : u"    "_s;
    term += "--"_L1 + option.name.toString();
    if (!option.valueName.isEmpty()) term += u' ' + option.valueName.toString();
    return term;
}

/// Two columns; further lines of an explanation begin below its first.
QString list(QStringView heading, const Entries& entries) {
    qsizetype width = 0;
    for (const auto& [term, explanation] : entries)
        width = std::max(width, term.size());
    QString text = heading.toString() + ":\n"_L1;
    for (const auto& [term, explanation] : entries) {
        QString left = term;
        for (const QStringView line : explanation.tokenize(u'\n')) {
            text += "  "_L1 + left.leftJustified(width) + "  "_L1 + line.toString() + u'\n';
            left.clear();
        }
    }
    return text + u'\n';
}

} // namespace

QString helpText(const CommandSpec& spec) {
    const bool isProgram = spec.name.isEmpty();
    QString text = "Usage: "_L1 + usageLine(spec);
    Entries commands;
    if (isProgram) {
        for (const CommandSpec& command : commandSpecs()) {
            text += "       "_L1 + usageLine(command);
            commands.emplace_back(command.name.toString(), command.summary);
        }
    }
    Entries options;
    for (const CommandOption& option : spec.options)
        options.emplace_back(optionTerm(option), option.help);

    text += u'\n' + spec.description.toString() + u'\n';
    if (isProgram) text += list(u"Commands", commands);
    return text + list(u"Options", options) + spec.details.toString();
}

} // namespace tessaline
