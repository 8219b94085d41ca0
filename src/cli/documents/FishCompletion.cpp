#include "cli/documents/ShellCompletions.h"

#include "cli/CommandTable.h"
#include "cli/documents/CompletionText.h"

#include <QStringList>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto conditions = R"(# fish completion for tessaline

# The words before the one to be completed are exactly these.
function __tessaline_words_are
    set -l words (commandline -opc)
    test "$words[2..-1]" = "$argv"
end

# The first argument is this command.
function __tessaline_command_is
    set -l words (commandline -opc)
    test (count $words) -gt 1; and test "$words[2]" = "$argv[1]"
end

# The first argument is none of these commands.
function __tessaline_command_is_none_of
    set -l words (commandline -opc)
    test (count $words) -lt 2; or not contains -- "$words[2]" $argv
end

)";

/// The help's first sentence, quoted for the shell.
QString summary(QStringView help) {
    QString text = firstSentence(help);
    return u'\'' + text.replace(u'\\', u"\\\\"_s).replace(u'\'', u"\\'"_s) + u'\'';
}

QString line(const QString& condition, const QString& rest) {
    return u"complete -c tessaline -n '%1' %2\n"_s.arg(condition, rest);
}

QString options(const CommandSpec& spec, const QString& condition) {
    QString text;
    for (const CommandOption& option : spec.options) {
        QString rest = "-l "_L1 + option.name.toString();
        if (option.letter) rest += u" -s %1"_s.arg(QChar(option.letter));
        if (option.value.isTaken())
            rest += option.value.kind == CommandValue::Kind::file ? " -r -F"_L1 : " -x"_L1;
        if (!option.value.choices.empty())
            rest += u" -a '%1'"_s.arg(joinedWords(option.value.choices));
        text += line(condition, rest + " -d "_L1 + summary(option.help));
    }
    return text;
}

QString actions(const CommandSpec& spec) {
    const QString name = spec.name.toString();
    QString text = line(u"__tessaline_command_is "_s + name, u"-f"_s);
    for (const ControlAction& action : spec.actions) {
        const QString word = action.name.toString();
        text += line(u"__tessaline_words_are "_s + name,
                     u"-a %1 -d %2"_s.arg(word, summary(action.help)));
        if (action.value.choices.empty()) continue;
        text += line(u"__tessaline_words_are %1 %2"_s.arg(name, word),
                     u"-a '%1'"_s.arg(joinedWords(action.value.choices)));
        for (const ChoiceTail& tail : action.tails) {
            if (tail.value.choices.empty()) continue;
            text +=
                line(u"__tessaline_words_are %1 %2 %3"_s.arg(name, word, tail.choice.toString()),
                     u"-a '%1'"_s.arg(joinedWords(tail.value.choices)));
        }
    }
    return text;
}

} // namespace

QString fishCompletion() {
    QString text = QString::fromUtf8(conditions);
    QString none = u"__tessaline_command_is_none_of"_s;
    for (const CommandSpec& spec : commandSpecs()) {
        none += u' ' + spec.name.toString();
        text += line(u"__tessaline_words_are"_s,
                     u"-a %1 -d %2"_s.arg(spec.name.toString(), summary(spec.summary)));
    }
    text += options(programSpec(), none);
    for (const CommandSpec& spec : commandSpecs()) {
        text += options(spec, u"__tessaline_command_is "_s + spec.name.toString());
        if (!spec.actions.empty()) text += actions(spec);
    }
    return text;
}

} // namespace tessaline
