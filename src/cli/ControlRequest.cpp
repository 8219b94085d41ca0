#include "cli/ControlRequest.h"

#include "cli/ControlActions.h"
#include "settings/PlainNumber.h"
#include "settings/TimeOfDay.h"

#include <algorithm>
#include <cmath>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

using Kind = CommandValue::Kind;

QString numbersOf(const CommandValue& value) {
    return u"a %1number from %2 to %3"_s.arg(value.isWhole ? u"whole "_s : QString())
        .arg(value.least)
        .arg(value.most);
}

/// What the value may be, for messages.
QString allowed(const CommandValue& value) {
    if (value.kind == Kind::finish) {
        return u"minutes from %1m to %2m or a time of day such as 15:30"_s.arg(value.least)
            .arg(value.most);
    }
    QStringList words;
    for (const QStringView choice : value.choices)
        words += choice.toString();
    if (value.kind == Kind::number) words += numbersOf(value);
    if (value.kind == Kind::phrase) words += u"a name"_s;
    const QString last = words.takeLast();
    return words.isEmpty() ? last : words.join(", "_L1) + " or "_L1 + last;
}

std::optional<QString> checkedNumber(const CommandValue& value, const QString& text) {
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    // Written so that NaN fails as well.
    if (!isNumber || !(number >= value.least && number <= value.most)) return {};
    if (value.isWhole && number != std::floor(number)) return {};
    return QString::fromLatin1(plainNumber(number + 0.0)); // no negative zero
}

std::optional<QString> checkedFinish(const CommandValue& value, const QString& text) {
    if (const auto time = timeOfDayFromText(text)) return timeOfDayText(*time);
    if (!text.endsWith(u'm')) return {};
    auto minutes = checkedNumber(value, text.chopped(1));
    if (minutes) *minutes += u'm';
    return minutes;
}

/// The word in the form that requests carry; none when it is not allowed.
std::optional<QString> checked(const CommandValue& value, const QString& word) {
    const auto& choices = value.choices;
    if (std::find(choices.begin(), choices.end(), word) != choices.end()) return word;
    if (value.kind == Kind::phrase && !word.isEmpty()) return word;
    if (value.kind == Kind::number) return checkedNumber(value, word);
    if (value.kind == Kind::finish) return checkedFinish(value, word);
    return {};
}

/// Takes the words apart from the first to the last.
class WordReader {
public:
    explicit WordReader(const QStringList& given) : words(given) {}

    /// The next word if the value allows it; else none, and `problem` says why.
    std::optional<QString> take(const CommandValue& value) {
        const QString before = words.first(next).join(u' ');
        if (next == words.size()) {
            problem = u"%1 needs %2"_s.arg(before, allowed(value));
            return {};
        }
        const QString word = takeText(value.kind);
        auto result = checked(value, word);
        if (!result) problem = u"%1 '%2' is not %3"_s.arg(before, word, allowed(value));
        return result;
    }

    bool isAtEnd() const { return next == words.size(); }
    /// The next word, which there is.
    const QString& peek() const { return words[next]; }

    QString problem;

private:
    QString takeText(Kind kind) {
        if (kind != Kind::phrase) return words[next++];
        QString text = words.sliced(next).join(u' ').trimmed();
        next = words.size();
        return text;
    }

    const QStringList& words;
    qsizetype next = 1; ///< behind the command's name
};

/// Reads what follows the command's name into the request. False when the reader tells a problem.
bool readArguments(const ControlAction& action, WordReader& reader, ControlRequest& request) {
    if (!action.value.isTaken() || (action.value.isOptional && reader.isAtEnd())) return true;
    const auto argument = reader.take(action.value);
    if (!argument) return false;
    request.argument = *argument;
    const auto tail =
        std::find_if(action.tails.begin(), action.tails.end(),
                     [&argument](const ChoiceTail& each) { return each.choice == *argument; });
    if (tail == action.tails.end() || reader.isAtEnd()) return true;
    const auto detail = reader.take(tail->value);
    if (detail) request.detail = *detail;
    return detail.has_value();
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

    ControlRequest request{action->command, {}};
    WordReader reader(words);
    if (!readArguments(*action, reader, request)) return refuse(reader.problem);
    if (!reader.isAtEnd()) return refuse(u"unexpected argument '%1'"_s.arg(reader.peek()));
    return request;
}

QStringList ControlRequest::words() const {
    const auto actions = controlActions();
    const auto action = std::find_if(actions.begin(), actions.end(),
                                     [this](const auto& a) { return a.command == command; });
    Q_ASSERT(action != actions.end());
    QStringList words{action->name.toString()};
    for (const QString& word : {argument, detail})
        if (!word.isEmpty()) words += word;
    return words;
}

double ControlRequest::number() const {
    return argument.toDouble();
}

} // namespace tessaline
