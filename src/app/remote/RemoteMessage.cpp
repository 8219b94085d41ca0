#include "app/remote/RemoteMessage.h"

#include "settings/EnumerationCodec.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <concepts>
#include <type_traits>

namespace tessaline::remoteMessage {

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray lineOf(const QJsonObject& message) {
    QByteArray line = QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n';
    return line.size() <= mostBytes ? line : QByteArray();
}

std::optional<QJsonObject> objectOn(const QByteArray& line) {
    if (line.size() >= mostBytes) return std::nullopt;
    const auto document = QJsonDocument::fromJson(line);
    if (!document.isObject()) return std::nullopt;
    return document.object();
}

/// How each kind of request is written.
struct RequestWriter {
    QJsonObject operator()(const ShowRequest&) const { return {{u"command"_s, u"show"_s}}; }

    QJsonObject operator()(const OpenRequest& request) const {
        return {{u"command"_s, u"open"_s},
                {u"path"_s, request.path},
                {u"follow"_s, request.follow},
                {u"copy"_s, request.isCopy}};
    }

    QJsonObject operator()(const ControlRequest& request) const {
        return {{u"command"_s, u"control"_s},
                {u"words"_s, QJsonArray::fromStringList(request.words())}};
    }
};

std::variant<RemoteRequest, Refusal> controlRequest(const QJsonArray& array) {
    QStringList words;
    for (const auto& word : array)
        words += word.toString();
    QString problem;
    if (const auto request = ControlRequest::parse(words, &problem)) return *request;
    return Refusal{problem};
}

QJsonValue written(const std::optional<double>& number) {
    return number ? QJsonValue(*number) : QJsonValue();
}

QJsonValue written(const QStringList& texts) {
    return QJsonArray::fromStringList(texts);
}

template <typename Value>
QJsonValue written(const Value& value) {
    if constexpr (std::is_enum_v<Value>) {
        return rawValue(value);
    } else {
        return value;
    }
}

void read(const QJsonValue& from, QString& text) {
    text = from.toString();
}

void read(const QJsonValue& from, QStringList& texts) {
    texts.clear();
    for (const auto& text : from.toArray())
        texts += text.toString();
}

void read(const QJsonValue& from, bool& flag) {
    flag = from.toBool();
}

void read(const QJsonValue& from, std::optional<double>& number) {
    number = from.isDouble() ? std::optional(from.toDouble()) : std::nullopt;
}

template <typename Value>
void read(const QJsonValue& from, Value& value) {
    if constexpr (std::is_enum_v<Value>) {
        decode(JsonValue{from.toString()}, value); // else it stays as it is
    } else if constexpr (std::floating_point<Value>) {
        value = from.toDouble();
    } else {
        value = Value(from.toInteger());
    }
}

/// How each kind of answer is written.
struct AnswerWriter {
    QJsonObject operator()(const Refusal& refusal) const {
        return {{u"ok"_s, false}, {u"error"_s, refusal.reason}};
    }

    QJsonObject operator()(const PrompterStatus& status) const {
        QJsonObject fields;
        PrompterStatus::visitFields(status, [&fields](const char* name, const auto& value) {
            fields.insert(QLatin1StringView(name), written(value));
        });
        return {{u"ok"_s, true}, {u"status"_s, fields}};
    }
};

} // namespace

QByteArray encode(const RemoteRequest& request) {
    return lineOf(std::visit(RequestWriter{}, request));
}

QByteArray encode(const RemoteAnswer& answer) {
    return lineOf(std::visit(AnswerWriter{}, answer));
}

std::variant<RemoteRequest, Refusal> decodeRequest(const QByteArray& line) {
    const auto message = objectOn(line);
    if (!message) return Refusal{u"this is no message"_s};
    const QString command = message->value("command"_L1).toString();
    if (command == "show"_L1) return ShowRequest{};
    if (command == "open"_L1) {
        return OpenRequest{message->value("path"_L1).toString(),
                           message->value("follow"_L1).toBool(),
                           message->value("copy"_L1).toBool()};
    }
    if (command == "control"_L1) return controlRequest(message->value("words"_L1).toArray());
    return Refusal{u"there is no command '%1'"_s.arg(command)};
}

std::optional<RemoteAnswer> decodeAnswer(const QByteArray& line) {
    const auto message = objectOn(line);
    if (!message || !message->value("ok"_L1).isBool()) return std::nullopt;
    if (!message->value("ok"_L1).toBool()) return Refusal{message->value("error"_L1).toString()};
    const QJsonObject fields = message->value("status"_L1).toObject();
    PrompterStatus status;
    PrompterStatus::visitFields(status, [&fields](const char* name, auto& value) {
        read(fields.value(QLatin1StringView(name)), value);
    });
    return status;
}

} // namespace tessaline::remoteMessage
