#include "cli/CommandArguments.h"

#include <algorithm>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// An argument that begins with a dash, split into the option's name and the value attached to it.
struct OptionText {
    QString name; ///< with its dashes
    std::optional<QString> value;
};

OptionText splitOption(const QString& argument) {
    const bool isLong = argument.startsWith("--"_L1);
    const qsizetype nameEnd = isLong ? argument.indexOf(u'=') : 2;
    if (nameEnd < 0 || nameEnd >= argument.size()) return {argument, std::nullopt};
    return {argument.first(nameEnd), argument.sliced(isLong ? nameEnd + 1 : nameEnd)};
}

const CommandOption* findOption(const CommandSpec& spec, QStringView name) {
    const auto found =
        std::find_if(spec.options.begin(), spec.options.end(), [&](const CommandOption& option) {
            if (name.startsWith(u"--")) return name.sliced(2) == option.name;
            return name.size() == 2 && option.letter != 0 && name[1] == option.letter;
        });
    return found == spec.options.end() ? nullptr : &*found;
}

/// Where numbers are expected, a negative one is no option: what is wrong with it can then be told.
bool isOption(const CommandSpec& spec, const QString& argument) {
    if (argument.size() < 2 || !argument.startsWith(u'-')) return false;
    return spec.actions.empty() || !argument[1].isDigit();
}

} // namespace

CommandArguments CommandArguments::parse(const CommandSpec& spec, const QStringList& arguments) {
    CommandArguments result;
    for (auto next = arguments.begin(); next != arguments.end() && result.error.isEmpty();) {
        const QString& argument = *next++;
        if (argument == "--"_L1) {
            for (; next != arguments.end(); ++next)
                result.operands.push_back(*next);
        } else if (isOption(spec, argument)) {
            result.addOption(spec, argument, next, arguments.end());
        } else {
            result.operands.push_back(argument);
        }
    }
    if (result.error.isEmpty() && result.operands.size() > spec.mostOperands)
        result.error = u"unexpected argument '%1'"_s.arg(result.operands[spec.mostOperands]);
    return result;
}

void CommandArguments::addOption(const CommandSpec& spec, const QString& argument,
                                 QStringList::const_iterator& next,
                                 QStringList::const_iterator end) {
    const auto [name, attachedValue] = splitOption(argument);
    const CommandOption* option = findOption(spec, name);
    const bool takesValue = option && option->value.isTaken();
    const bool isLong = argument.startsWith("--"_L1);
    if (!option || (attachedValue && !takesValue && !isLong)) {
        error = u"unknown option '%1'"_s.arg(isLong ? name : argument);
    } else if (attachedValue && !takesValue) {
        error = u"option '%1' takes no value"_s.arg(name);
    } else if (takesValue && !attachedValue && next == end) {
        error = u"option '%1' needs a value"_s.arg(name);
    } else {
        QString value = attachedValue.value_or(QString());
        if (takesValue && !attachedValue) value = *next++;
        options[option->name.toString()] = value;
    }
}

std::optional<QString> CommandArguments::value(QStringView option) const {
    const auto found = options.find(option.toString());
    if (found == options.end()) return std::nullopt;
    return found->second;
}

} // namespace tessaline
