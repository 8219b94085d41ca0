#include "remote/web/HttpRequestReader.h"

#include <algorithm>
#include <optional>

namespace tessaline {

namespace {

constexpr QByteArrayView lineEnd("\r\n");
constexpr QByteArrayView headEnd("\r\n\r\n");

bool isVisible(char c) {
    return c > ' ' && c <= '~';
}

bool isNameCharacter(char c) {
    const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    const bool isDigit = c >= '0' && c <= '9';
    return isLetter || isDigit || QByteArrayView("!#$%&'*+-.^_`|~").contains(c);
}

bool isValueCharacter(char c) {
    return isVisible(c) || c == ' ' || c == '\t' || static_cast<unsigned char>(c) >= 0x80;
}

bool readRequestLine(QByteArrayView line, HttpRequest& request) {
    constexpr QByteArrayView version(" HTTP/1.1");
    if (!line.endsWith(version)) return false;
    line.chop(version.size());
    if (line.startsWith("GET ")) {
        request.method = HttpRequest::Method::get;
        line = line.sliced(4);
    } else if (line.startsWith("POST ")) {
        request.method = HttpRequest::Method::post;
        line = line.sliced(5);
    } else {
        return false;
    }
    if (!line.startsWith('/') || line.size() > httpRequestReader::longestPath) return false;
    if (!std::all_of(line.begin(), line.end(), isVisible)) return false;
    request.path = line.toByteArray();
    return true;
}

/// A header that comes twice is wrong: which of both counts, others may see differently.
bool readHeader(QByteArrayView line, HttpRequest& request) {
    const qsizetype colon = line.indexOf(':');
    if (colon <= 0) return false;
    const QByteArrayView name = line.first(colon);
    const QByteArrayView value = line.sliced(colon + 1);
    if (!std::all_of(name.begin(), name.end(), isNameCharacter)) return false;
    if (!std::all_of(value.begin(), value.end(), isValueCharacter)) return false;
    if (request.headers.size() == httpRequestReader::mostHeaders) return false;
    return request.headers.emplace(name.toByteArray().toLower(), value.toByteArray().trimmed())
        .second;
}

bool readHead(QByteArrayView head, HttpRequest& request) {
    bool isFirst = true;
    while (true) {
        const qsizetype end = head.indexOf(lineEnd);
        const QByteArrayView line = end < 0 ? head : head.first(end);
        if (!(isFirst ? readRequestLine(line, request) : readHeader(line, request))) return false;
        if (end < 0) return true;
        head = head.sliced(end + lineEnd.size());
        isFirst = false;
    }
}

/// How many bytes follow the head; none when it says so in any other way than a plain number.
std::optional<qsizetype> bodyLength(const HttpRequest& request) {
    constexpr qsizetype mostDigits = 3;
    if (request.headers.count("transfer-encoding") != 0) return {};
    if (request.headers.count("content-length") == 0) return 0;
    const QByteArray digits = request.header("content-length");
    const bool isPlain =
        !digits.isEmpty() && digits.size() <= mostDigits &&
        std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!isPlain || digits.toInt() > httpRequestReader::longestBody) return {};
    if (request.method == HttpRequest::Method::get && digits.toInt() != 0) return {};
    return digits.toInt();
}

} // namespace

HttpReading httpRequestReader::read(QByteArrayView bytes) {
    const qsizetype end = bytes.first(std::min(bytes.size(), longestHead)).indexOf(headEnd);
    if (end < 0) {
        if (bytes.size() >= longestHead) return WrongRequest{};
        return UnfinishedRequest{};
    }
    HttpRequest request;
    if (!readHead(bytes.first(end), request)) return WrongRequest{};
    const auto length = bodyLength(request);
    const QByteArrayView rest = bytes.sliced(end + headEnd.size());
    if (!length || rest.size() > *length) return WrongRequest{};
    if (rest.size() < *length) return UnfinishedRequest{};
    request.body = rest.toByteArray();
    return request;
}

} // namespace tessaline
