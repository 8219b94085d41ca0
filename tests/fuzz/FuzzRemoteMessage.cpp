#include "FuzzFailure.h"

#include "app/remote/RemoteMessage.h"
#include "cli/ControlRequest.h"

#include <QJsonArray>

using namespace tessaline;

namespace {

QStringList wordsOf(const QJsonObject& message) {
    QStringList words;
    for (const auto& word : message.value(QStringLiteral("words")).toArray())
        words += word.toString();
    return words;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto message = remoteMessage::decode(bytes);
    if (!message) return 0;
    const QString text = QString::fromLatin1(bytes);
    const auto request = ControlRequest::parse(wordsOf(*message), nullptr);
    if (!request) return 0;
    if (request->command == ControlCommand::speed &&
        !(request->speed() >= ControlRequest::leastSpeed &&
          request->speed() <= ControlRequest::mostSpeed))
        reportFuzzFailure("a speed out of its range", text);
    if (ControlRequest::parse(request->words(), nullptr) != request)
        reportFuzzFailure("another request from its own words", text);
    return 0;
}
