#include "FuzzFailure.h"

#include "remote/web/HttpRequestReader.h"

#include <QString>

using namespace tessaline;

namespace {

bool isBeyondTheLimits(const HttpRequest& request) {
    return !request.path.startsWith('/') || request.path.size() > httpRequestReader::longestPath ||
           request.headers.size() > httpRequestReader::mostHeaders ||
           request.body.size() > httpRequestReader::longestBody;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QString text = QString::fromLatin1(bytes);
    const HttpReading reading = httpRequestReader::read(bytes);
    if (bytes.size() > httpRequestReader::mostBytes &&
        !std::holds_alternative<WrongRequest>(reading))
        reportFuzzFailure("more bytes than any request has", text);
    const auto* request = std::get_if<HttpRequest>(&reading);
    if (!request) return 0;
    if (isBeyondTheLimits(*request)) reportFuzzFailure("a request beyond the limits", text);
    request->wantsWebSocket();
    request->cookie("tessaline-47865");
    // Whatever comes in pieces is read once it is whole, and not earlier.
    const HttpReading before = httpRequestReader::read(bytes.chopped(1));
    if (!std::holds_alternative<UnfinishedRequest>(before))
        reportFuzzFailure("a request that was there before its last byte", text);
    return 0;
}
