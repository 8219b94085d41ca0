#include "cli/ControlRequest.h"

#include "cli/CommandTable.h"
#include "settings/PlainNumber.h"

#include <algorithm>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the action's argument may be, for messages.
QString allowedArguments(const ControlAction& action) {
    if (action.value.choices.empty()) {
        return u"a number from %1 to %2"_s.arg(ControlRequest::leastSpeed)
            .arg(ControlRequest::mostSpeed);
    }
    QString text;
    for (auto choice = action.value.choices.begin(); choice != action.value.choices.end();
         ++choice) {
        if (!text.isEmpty()) text += choice + 1 == action.value.choices.end() ? " or "_L1 : ", "_L1;
        text += choice->toString();
    }
    return text;
}

/// The argument in the form that requests carry; none when it is not allowed.
std::optional<QString> checkedArgument(const ControlAction& action, const QString& argument) {
    const auto& choices = action.value.choices;
    if (!choices.empty()) {
        if (std::find(choices.begin(), choices.end(), argument) == choices.end()) return {};
        return argument;
    }
    bool isNumber = false;
    const double number = argument.toDouble(&isNumber);
    // Written so that NaN fails as well.
    if (!isNumber || !(number >= ControlRequest::leastSpeed && number <= ControlRequest::mostSpeed))
        return {};
    return QString::fromLatin1(plainNumber(number + 0.0)); // no negative zero
}

} // namespace

std::optional<ControlRequest> ControlRequest::parse(const QStringList& words, QString* error) {
    const auto refuse = [error](const QString& why) {
        if (error) *error = why;
        return std::nullopt;
    };
    if (words.isEmpty()) return refuse(u"ctl needs a COMMAND"_s);
    const ControlAction* action = controlActionNamed(words.first());
    if (!action) return refuse(u"unknown command '%1'"_s.arg(words.first()));

    const qsizetype count = action->value.isTaken() ? 2 : 1;
    if (words.size() > count) return refuse(u"unexpected argument '%1'"_s.arg(words[count]));
    if (words.size() < count)
        return refuse(u"%1 needs %2"_s.arg(words.first(), allowedArguments(*action)));
    if (count == 1) return ControlRequest{action->command, {}};

    const auto argument = checkedArgument(*action, words[1]);
    if (argument) return ControlRequest{action->command, *argument};
    return refuse(u"%1 '%2' is not %3"_s.arg(words[0], words[1], allowedArguments(*action)));
}

QStringList ControlRequest::words() const {
    const auto actions = controlActions();
    const auto action = std::find_if(actions.begin(), actions.end(),
                                     [this](const auto& a) { return a.command == command; });
    Q_ASSERT(action != actions.end());
    QStringList words{action->name.toString()};
    if (!argument.isEmpty()) words += argument;
    return words;
}

double ControlRequest::speed() const {
    return argument.toDouble();
}

} // namespace tessaline
