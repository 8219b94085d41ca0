#include "remote/web/HttpReply.h"

namespace tessaline {

namespace {

/// For people who look at it; programs go by the number.
QByteArray reasonOf(int status) {
    switch (status) {
    case 200:
        return "OK";
    case 204:
        return "No Content";
    default:
        return "Refused";
    }
}

} // namespace

QByteArray HttpReply::head() const {
    constexpr int noContent = 204;
    QByteArray text = "HTTP/1.1 " + QByteArray::number(status) + ' ' + reasonOf(status) + "\r\n";
    for (const auto& [name, value] : headers)
        text += name + ": " + value + "\r\n";
    if (status != noContent) text += "Content-Length: " + QByteArray::number(body.size()) + "\r\n";
    return text + "Connection: close\r\n\r\n";
}

} // namespace tessaline
