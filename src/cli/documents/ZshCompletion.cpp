#include "cli/documents/ShellCompletions.h"

#include "cli/CommandTable.h"
#include "cli/documents/CompletionText.h"

#include <QStringList>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

// %1: the program's options, %2: its commands, %3: the function of each command,
// %4: the commands as a pattern.
constexpr auto zshScript = R"(#compdef tessaline

%3
_tessaline_first() {
    local -a commands=(
%2    )
    _describe -t commands command commands
    _files
}

_tessaline() {
    if ((CURRENT > 2)) && [[ $words[2] == (%4) ]]; then
        shift words
        ((CURRENT--))
        _tessaline_$words[1]
    else
        _arguments %1 '1:file:_tessaline_first'
    fi
}

_tessaline "$@"
)";

/// The help's first sentence, safe within a quoted word of the shell and a part of it.
QString quotedSummary(QStringView help) {
    QString text = firstSentence(help).replace(u'\'', u"'\\''"_s);
    for (const QChar special : {u'[', u']', u':'})
        text.replace(special, u'\\' + QString(special));
    return text;
}

/// What may stand for the value, as _arguments wants to know it.
QString action(const CommandValue& value) {
    if (value.kind == CommandValue::Kind::file) return u"_files"_s;
    return value.choices.empty() ? u" "_s : u"(%1)"_s.arg(joinedWords(value.choices));
}

QString optionArguments(const CommandSpec& spec) {
    QStringList words;
    for (const CommandOption& option : spec.options) {
        const QString name = "--"_L1 + option.name.toString();
        QString rest = u"[%1]"_s.arg(quotedSummary(option.help));
        if (option.value.isTaken())
            rest += u":%1:%2"_s.arg(option.value.name.toString(), action(option.value));
        const QString equals = option.value.isTaken() ? u"="_s : QString();
        if (option.letter) {
            const QString letter = QString(u'-') + QChar(option.letter);
            const QString both = u"(%1 %2)"_s.arg(letter, name);
            const QString plus = option.value.isTaken() ? u"+"_s : QString();
            words += u"'%1%2%3'"_s.arg(both, letter + plus, rest);
            words += u"'%1%2%3'"_s.arg(both, name + equals, rest);
        } else {
            words += u"'%1%2'"_s.arg(name + equals, rest);
        }
    }
    return words.join(u" ");
}

QString descriptions(const auto& entries, const auto& helpOf) {
    QString text;
    for (const auto& entry : entries)
        text += u"        '%1:%2'\n"_s.arg(entry.name.toString(), quotedSummary(helpOf(entry)));
    return text;
}

QString controlFunction(const CommandSpec& spec) {
    QString values;
    QString details;
    for (const ControlAction& entry : spec.actions) {
        if (entry.value.choices.empty()) continue;
        const QString name = entry.name.toString();
        values += u"    %1) compadd %2 ;;\n"_s.arg(name, joinedWords(entry.value.choices));
        for (const ChoiceTail& tail : entry.tails) {
            if (tail.value.choices.empty()) continue;
            details += u"    '%1 %2') compadd %3 ;;\n"_s.arg(name, tail.choice.toString(),
                                                             joinedWords(tail.value.choices));
        }
    }
    return u"_tessaline_%1_command() {\n"
           u"    local -a commands=(\n%2    )\n"
           u"    _describe -t commands command commands\n"
           u"}\n\n"
           u"_tessaline_%1_argument() {\n"
           u"    case $words[2] in\n%3    esac\n"
           u"}\n\n"
           u"_tessaline_%1_detail() {\n"
           u"    case \"$words[2] $words[3]\" in\n%5    esac\n"
           u"}\n\n"
           u"_tessaline_%1() {\n"
           u"    _arguments %4 '1:command:_tessaline_%1_command' "
           u"'2:argument:_tessaline_%1_argument' '3:detail:_tessaline_%1_detail'\n"
           u"}\n"_s.arg(spec.name.toString(),
                        descriptions(spec.actions, [](const auto& entry) { return entry.help; }),
                        values, optionArguments(spec), details);
}

QString fileFunction(const CommandSpec& spec) {
    return u"_tessaline_%1() {\n"
           u"    _arguments %2 '1:file:_files'\n"
           u"}\n"_s.arg(spec.name.toString(), optionArguments(spec));
}

} // namespace

QString zshCompletion() {
    QStringList functions;
    QStringList names;
    for (const CommandSpec& spec : commandSpecs()) {
        functions += spec.actions.empty() ? fileFunction(spec) : controlFunction(spec);
        names += spec.name.toString();
    }
    const QString commands =
        descriptions(commandSpecs(), [](const auto& spec) { return spec.summary; });
    return QString::fromUtf8(zshScript).arg(optionArguments(programSpec()), commands,
                                            functions.join(u'\n'), names.join(u'|'));
}

} // namespace tessaline
