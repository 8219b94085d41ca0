#include "cli/documents/ManualPage.h"

#include "cli/CommandTable.h"
#include "cli/documents/Roff.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

QString synopsis(const CommandSpec& spec) {
    QString line = roffBold(u"tessaline") + u' ';
    if (!spec.name.isEmpty()) line += roffBold(spec.name) + u' ';
    return line + roffText(spec.usage) + "\n.br\n"_L1;
}

QString valueMarkup(const CommandValue& value) {
    return value.isTaken() ? u' ' + roffItalic(value.name) : QString();
}

QString options(const CommandSpec& spec) {
    QString text;
    for (const CommandOption& option : spec.options) {
        QString term;
        if (option.letter) term = roffBold(QString(u'-') + QChar(option.letter)) + ", "_L1;
        term += roffBold(u"--"_s + option.name.toString()) + valueMarkup(option.value);
        text += roffEntry(term, option.help);
    }
    return text;
}

QString actionEntries(const CommandSpec& spec) {
    QString text;
    for (const ControlAction& action : spec.actions)
        text += roffEntry(roffBold(action.name) + valueMarkup(action.value), action.help);
    return text;
}

/// A section's list. What has no explanation stands in paragraphs of its own.
QString entries(const HelpSection& section) {
    QString text;
    for (const HelpEntry& entry : section.entries) {
        if (!entry.text.isEmpty()) {
            text += roffEntry(roffBold(entry.term), entry.text);
            continue;
        }
        if (!text.isEmpty()) text += ".PP\n"_L1;
        text += roffBold(entry.term) + u'\n';
    }
    return text;
}

/// Everything about a command.
QString command(const CommandSpec& spec) {
    QString text = ".SH "_L1 + roffText(spec.name.toString().toUpper()) + u'\n';
    text += roffParagraphs(spec.description) + actionEntries(spec);
    text += ".SS Options of "_L1 + roffText(spec.name) + u'\n' + options(spec);
    if (!spec.notes.isEmpty()) text += ".PP\n"_L1 + roffParagraphs(spec.notes);
    for (const HelpSection& section : spec.sections)
        text += ".SS "_L1 + section.heading.toString() + u'\n' + entries(section);
    return text;
}

} // namespace

QString manualPage(const QString& version, const QString& date) {
    const CommandSpec& program = programSpec();
    QString text = u".TH TESSALINE 1 %1 \"tessaline %2\" \"User Commands\"\n"_s.arg(date, version);
    text += ".SH NAME\ntessaline \\- teleprompter under the top edge of the screen\n"_L1;
    text += ".SH SYNOPSIS\n"_L1 + synopsis(program);
    for (const CommandSpec& spec : commandSpecs())
        text += synopsis(spec);
    text.chop(4); // the last line needs no break
    text += ".SH DESCRIPTION\n"_L1 + roffParagraphs(program.description);
    text += ".SH OPTIONS\n"_L1 + options(program);
    text += ".PP\n"_L1 + roffParagraphs(program.notes);
    for (const CommandSpec& spec : commandSpecs())
        text += command(spec);
    for (const HelpSection& section : program.sections)
        text += ".SH "_L1 + section.heading.toString().toUpper() + u'\n' + entries(section);
    return text;
}

} // namespace tessaline
