#include "platform/qt/WebConnection.h"

#include "remote/web/HttpRequestReader.h"

#include <QHostAddress>

#include <algorithm>
#include <utility>

namespace tessaline {

namespace {

constexpr qsizetype pieceBytes = qsizetype{64} << 10;

} // namespace

void WebConnection::DeleteLater::operator()(QTcpSocket* ended) const {
    ended->disconnect();
    ended->abort();
    ended->deleteLater(); // its own signal may be what brings us here
}

WebConnection::WebConnection(QTcpSocket* opened)
    : socket(opened), deadline(std::chrono::steady_clock::now() + longestRequest) {
    socket->setParent(nullptr);
    // One more than a request may have: whoever sends that is seen to.
    socket->setReadBufferSize(httpRequestReader::mostBytes + 1);
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
}

WebConnection::~WebConnection() = default;

void WebConnection::watch(const Handlers& handlers) {
    QObject::connect(socket.get(), &QTcpSocket::readyRead, socket.get(), handlers.onBytes);
    QObject::connect(socket.get(), &QTcpSocket::disconnected, socket.get(), handlers.onEnd);
    QObject::connect(socket.get(), &QTcpSocket::bytesWritten, socket.get(), [this] { sendMore(); });
}

bool WebConnection::isBroken() const {
    return socket->state() != QAbstractSocket::ConnectedState;
}

QByteArray WebConnection::bytes() const {
    return socket->peek(httpRequestReader::mostBytes + 1);
}

QByteArray WebConnection::peerAddress() const {
    return socket->peerAddress().toString().toLatin1();
}

void WebConnection::answer(const HttpReply& reply) {
    answered = true;
    deadline = std::chrono::steady_clock::now() + longestReply;
    socket->readAll(); // what is left unread would have the reply thrown away
    body = reply.body;
    socket->write(reply.head());
    if (body.isEmpty()) socket->disconnectFromHost();
}

/// Keeps no copy of a long reply for a browser that reads it slowly.
void WebConnection::sendMore() {
    if (!answered || sent == body.size() || socket->bytesToWrite() > 0) return;
    const qsizetype size = std::min(pieceBytes, body.size() - sent);
    socket->write(body.constData() + sent, size);
    sent += size;
    if (sent == body.size()) socket->disconnectFromHost();
}

QTcpSocket* WebConnection::release() {
    socket->disconnect();
    return socket.release();
}

} // namespace tessaline
