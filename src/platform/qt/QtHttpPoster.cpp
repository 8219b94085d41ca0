#include "platform/qt/QtHttpPoster.h"

#include <QSslSocket>

#include <algorithm>
#include <optional>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// No server says more before its final status.
constexpr qsizetype longestHead = qsizetype{64} << 10;

QByteArray requestFor(const QUrl& address, const QByteArray& body) {
    const QUrl place = address.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
    QByteArray target = place.path(QUrl::FullyEncoded).toLatin1();
    if (target.isEmpty()) target = "/";
    if (place.hasQuery()) target += '?' + place.query(QUrl::FullyEncoded).toLatin1();
    return "POST " + target +
           " HTTP/1.1\r\n"
           "Host: " +
           place.authority(QUrl::FullyEncoded).toLatin1() +
           "\r\n"
           "User-Agent: Tessaline\r\n"
           "Content-Type: application/json\r\n"
           "Content-Length: " +
           QByteArray::number(body.size()) +
           "\r\n"
           "Connection: close\r\n"
           "\r\n" +
           body;
}

/// The status that a head begins with; 0 while it may still come, none when this is no HTTP.
std::optional<int> statusIn(const QByteArray& head) {
    constexpr QByteArrayView version("HTTP/1.");
    constexpr qsizetype statusStart = 9;
    constexpr qsizetype statusEnd = 12;
    const auto known = std::min(head.size(), version.size());
    if (QByteArrayView(head).first(known) != version.first(known)) return std::nullopt;
    if (head.size() <= statusEnd) return 0;
    const QByteArray digits = head.sliced(statusStart, statusEnd - statusStart);
    const bool isStatus =
        head[statusStart - 1] == ' ' && digits[0] >= '1' &&
        std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; }) &&
        (head[statusEnd] == ' ' || head[statusEnd] == '\r');
    return isStatus ? std::optional(digits.toInt()) : std::nullopt;
}

struct DeleteLater {
    void operator()(QObject* object) const { object->deleteLater(); }
};

class QtHttpPost final : public HttpPoster::Post {
public:
    QtHttpPost(QUrl destination, const QByteArray& body, HttpPoster::Handler onAnswer)
        : address(std::move(destination))
        , request(requestFor(address, body))
        , handler(std::move(onAnswer))
        , socket(new QSslSocket) {
        const auto send = [this] { socket->write(std::exchange(request, {})); };
        if (isEncrypted()) {
            QObject::connect(socket.get(), &QSslSocket::encrypted, &context, send);
        } else {
            QObject::connect(socket.get(), &QSslSocket::connected, &context, send);
        }
        QObject::connect(socket.get(), &QSslSocket::readyRead, &context, [this] { listen(); });
        QObject::connect(socket.get(), &QSslSocket::errorOccurred, &context,
                         [this] { finish({.status = 0, .problem = socket->errorString()}); });
        QMetaObject::invokeMethod(
            &context, [this] { start(); }, Qt::QueuedConnection);
    }

private:
    bool isEncrypted() const { return address.scheme() == "https"_L1; }

    void start() {
        constexpr int encryptedPort = 443;
        constexpr int plainPort = 80;
        if (isEncrypted()) {
            socket->connectToHostEncrypted(address.host(), quint16(address.port(encryptedPort)));
        } else if (address.scheme() == "http"_L1) {
            socket->connectToHost(address.host(), quint16(address.port(plainPort)));
        } else {
            finish({.status = 0, .problem = u"The address is not one of a web server"_s});
        }
    }

    void listen() {
        head += socket->read(longestHead - head.size());
        const auto status = statusIn(head);
        if (!status) return finish({.status = 0, .problem = u"The answer is not HTTP"_s});
        const bool isFinal = *status >= 200;
        if (isFinal) return finish({.status = *status, .problem = {}});
        if (*status == 0) return;
        // Something is said before the answer itself.
        const qsizetype end = head.indexOf("\r\n\r\n");
        if (end >= 0) {
            head.remove(0, end + 4);
            if (!head.isEmpty() || socket->bytesAvailable() > 0) listen();
        } else if (head.size() >= longestHead) {
            finish({.status = 0, .problem = u"The answer does not come to its point"_s});
        }
    }

    void finish(const HttpPoster::Answer& answer) {
        QObject::disconnect(socket.get(), nullptr, &context, nullptr);
        // The handler may destroy this.
        const auto tell = std::exchange(handler, nullptr);
        tell(answer);
    }

    const QUrl address;
    QByteArray request;
    HttpPoster::Handler handler;
    QByteArray head;                                 ///< of the answer, as far as it has come
    std::unique_ptr<QSslSocket, DeleteLater> socket; ///< may be what calls when this goes
    QObject context;                                 ///< ends the socket's calls
};

} // namespace

std::unique_ptr<HttpPoster::Post> QtHttpPoster::post(const QUrl& address, const QByteArray& body,
                                                     Handler handler) {
    return std::make_unique<QtHttpPost>(address, body, std::move(handler));
}

} // namespace tessaline
