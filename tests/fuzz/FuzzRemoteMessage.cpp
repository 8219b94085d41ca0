#include "FuzzFailure.h"

#include "app/remote/RemoteMessage.h"

using namespace tessaline;

namespace {

bool isOutOfRange(const ControlRequest& request) {
    return request.command == ControlCommand::speed &&
           !(request.number() >= ControlRequest::leastSpeed &&
             request.number() <= ControlRequest::mostSpeed);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QString text = QString::fromLatin1(bytes);
    if (const auto answer = remoteMessage::decodeAnswer(bytes)) remoteMessage::encode(*answer);
    const auto heard = remoteMessage::decodeRequest(bytes);
    const auto* request = std::get_if<RemoteRequest>(&heard);
    if (!request) return 0;
    const auto* control = std::get_if<ControlRequest>(request);
    if (control && isOutOfRange(*control)) reportFuzzFailure("a speed out of its range", text);
    const QByteArray line = remoteMessage::encode(*request);
    if (!line.isEmpty() && remoteMessage::decodeRequest(line.chopped(1)) != heard)
        reportFuzzFailure("another request from its own line", text);
    return 0;
}
