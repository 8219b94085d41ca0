#include "cli/documents/ShellCompletions.h"

#include "cli/CommandTable.h"
#include "cli/documents/CompletionText.h"

#include <QStringList>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

// %1: the program's options, %2: the branches of its commands, %3: their names.
constexpr auto script = R"(# bash completion for tessaline

# _tessaline_offer WORDS: what of these words begins as the current one does.
_tessaline_offer() {
    mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -W "$1" -- "$current")
}

_tessaline_offer_files() {
    compopt -o filenames
    mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "$current")
}

_tessaline() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=
    COMPREPLY=()
    # bash takes --format=html apart into three words.
    if [[ $current == = ]]; then
        current=
    elif [[ $previous == = ]]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    if ((COMP_CWORD > 1)); then command=${COMP_WORDS[1]}; fi

    case $command in
%2    *)
        case $current in
        -*) _tessaline_offer '%1' ;;
        *)
            if [[ -z $command ]]; then _tessaline_offer '%3'; fi
            _tessaline_offer_files
            ;;
        esac
        ;;
    esac
}

complete -F _tessaline tessaline
)";

QString optionWords(const CommandSpec& spec) {
    QStringList words;
    for (const CommandOption& option : spec.options) {
        words += "--"_L1 + option.name.toString();
        if (option.letter) words += QString(u'-') + QChar(option.letter);
    }
    return words.join(u' ');
}

/// Shell code that offers what the value may be.
QString offer(const CommandValue& value) {
    if (value.kind == CommandValue::Kind::file) return u"_tessaline_offer_files"_s;
    if (value.choices.empty()) return u":"_s;
    return u"_tessaline_offer '%1'"_s.arg(joinedWords(value.choices));
}

QString controlBranch(const CommandSpec& spec) {
    QStringList names;
    QString values;
    QString details;
    for (const ControlAction& action : spec.actions) {
        const QString name = action.name.toString();
        names += name;
        if (!action.value.choices.empty())
            values += u"            %1) %2 ;;\n"_s.arg(name, offer(action.value));
        for (const ChoiceTail& tail : action.tails) {
            if (tail.value.choices.empty()) continue;
            details += u"            '%1 %2') %3 ;;\n"_s.arg(name, tail.choice.toString(),
                                                             offer(tail.value));
        }
    }
    return u"    %1)\n"
           u"        if ((COMP_CWORD == 2)); then\n"
           u"            _tessaline_offer '%2 %3'\n"
           u"        elif ((COMP_CWORD == 3)); then\n"
           u"            case $previous in\n%4"
           u"            esac\n"
           u"        elif ((COMP_CWORD == 4)); then\n"
           u"            case \"${COMP_WORDS[2]} $previous\" in\n%5"
           u"            esac\n"
           u"        fi\n"
           u"        ;;\n"_s.arg(spec.name.toString(), names.join(u' '), optionWords(spec), values,
                                 details);
}

QString fileBranch(const CommandSpec& spec) {
    QString values;
    for (const CommandOption& option : spec.options) {
        if (!option.value.isTaken()) continue;
        QString pattern = "--"_L1 + option.name.toString();
        if (option.letter) pattern += u" | -%1"_s.arg(QChar(option.letter));
        values += u"        %1) %2 ;;\n"_s.arg(pattern, offer(option.value));
    }
    return u"    %1)\n"
           u"        case $previous in\n%2"
           u"        *)\n"
           u"            case $current in\n"
           u"            -*) _tessaline_offer '%3' ;;\n"
           u"            *) _tessaline_offer_files ;;\n"
           u"            esac\n"
           u"            ;;\n"
           u"        esac\n"
           u"        ;;\n"_s.arg(spec.name.toString(), values, optionWords(spec));
}

} // namespace

QString bashCompletion() {
    QStringList commands;
    QString branches;
    for (const CommandSpec& spec : commandSpecs()) {
        commands += spec.name.toString();
        branches += spec.actions.empty() ? fileBranch(spec) : controlBranch(spec);
    }
    return QString::fromUtf8(script).arg(optionWords(programSpec()), branches, commands.join(u' '));
}

} // namespace tessaline
