#include "analytics/HttpServer.h"

#include <QTcpSocket>

#include <memory>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

qsizetype contentLength(const QByteArray& head) {
    const QByteArray key = "content-length:";
    const qsizetype start = head.toLower().indexOf(key);
    if (start < 0) return 0;
    const qsizetype value = start + key.size();
    return head.mid(value, head.indexOf("\r\n", value) - value).trimmed().toLongLong();
}

} // namespace

HttpServer::HttpServer() {
    setAnswer(200);
    QObject::connect(&server, &QTcpServer::newConnection, &server, [this] { accept(); });
    if (!server.listen(QHostAddress::LocalHost)) qFatal("There is no loopback interface");
    port = server.serverPort();
}

void HttpServer::setAnswer(int status, const QByteArray& headers, const QByteArray& body) {
    answer = [=](QTcpSocket& socket) {
        socket.write("HTTP/1.1 " + QByteArray::number(status) + " Status\r\n" + headers +
                     "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
    };
}

QUrl HttpServer::address() const {
    return QUrl(u"http://127.0.0.1:%1/v2/"_s.arg(port));
}

void HttpServer::accept() {
    while (QTcpSocket* const socket = server.nextPendingConnection()) {
        ++connectionCount;
        const auto text = std::make_shared<QByteArray>();
        // What is left unread turns the close into a reset.
        if (resetsRequests) socket->setReadBufferSize(1);
        QObject::connect(socket, &QTcpSocket::readyRead, socket,
                         [this, socket, text] { read(*socket, *text); });
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

void HttpServer::read(QTcpSocket& socket, QByteArray& text) {
    if (resetsRequests) {
        socket.abort();
        return;
    }
    text += socket.readAll();
    const qsizetype headEnd = text.indexOf("\r\n\r\n");
    if (headEnd < 0) return;
    const qsizetype end = headEnd + 4 + contentLength(text.left(headEnd + 2));
    if (text.size() < end) return;
    received.append({text.left(headEnd), text.mid(headEnd + 4, end - headEnd - 4)});
    text.remove(0, end);
    answer(socket);
}

} // namespace tessaline
