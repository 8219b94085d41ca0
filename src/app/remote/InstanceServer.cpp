#include "app/remote/InstanceServer.h"

#include "app/remote/RemoteMessage.h"
#include "platform/TimerMaker.h"

#include <QFile>
#include <QLocalSocket>
#include <QPointer>

#include <iterator>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

InstanceServer::InstanceServer(TimerMaker& timerMaker, Handler requestHandler)
    : timers(timerMaker), handler(std::move(requestHandler)) {
    server.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server, &QLocalServer::newConnection, &server, [this] { acceptAll(); });
}

InstanceServer::~InstanceServer() {
    server.close();
    for (Connection& connection : connections)
        connection.socket->disconnect();
}

bool InstanceServer::listen(const QString& path, QString* problem) {
    QFile::remove(path);
    if (server.listen(path)) return true;
    *problem = server.errorString();
    return false;
}

void InstanceServer::acceptAll() {
    while (QLocalSocket* socket = server.nextPendingConnection()) {
        if (connections.size() == mostConnections) drop(connections.begin());
        socket->setParent(nullptr);
        socket->setReadBufferSize(remoteMessage::mostBytes);
        connections.push_back({.socket = std::unique_ptr<QLocalSocket>(socket)});
        const auto connection = std::prev(connections.end());
        connection->timeout = timers.every(TimerMaker::Interval(secondsPerConnection),
                                           [this, connection] { drop(connection); });
        QObject::connect(socket, &QLocalSocket::disconnected, &server,
                         [this, connection] { drop(connection); });
        QObject::connect(socket, &QLocalSocket::readyRead, &server,
                         [this, connection] { read(connection); });
        // Either may have happened before somebody listened.
        if (socket->state() == QLocalSocket::UnconnectedState) {
            drop(connection);
        } else {
            read(connection);
        }
    }
}

void InstanceServer::read(Connections::iterator connection) {
    if (connection->heard) return;
    QLocalSocket& socket = *connection->socket;
    if (socket.canReadLine()) {
        QByteArray line = socket.readLine();
        line.chop(1);
        handle(*connection, line);
    } else if (socket.bytesAvailable() >= remoteMessage::mostBytes) {
        handle(*connection, {});
    }
}

void InstanceServer::handle(Connection& connection, const QByteArray& line) {
    connection.heard = true;
    connection.timeout.reset(); // how long they wait is the others' business now
    const Reply reply = [socket = QPointer(connection.socket.get())](const RemoteAnswer& answer) {
        if (!socket) return;
        socket->write(remoteMessage::encode(answer));
        socket->flush(); // the request may have ended the program
        socket->disconnectFromServer();
    };
    const auto heard = remoteMessage::decodeRequest(line);
    if (const auto* request = std::get_if<RemoteRequest>(&heard)) {
        handler(*request, reply);
    } else {
        reply(std::get<Refusal>(heard));
    }
}

void InstanceServer::drop(Connections::iterator connection) {
    connection->socket->disconnect();
    // Its own signal or timer may be what brings us here.
    QLocalSocket* socket = connection->socket.release();
    socket->abort();
    socket->deleteLater();
    connections.erase(connection);
}

} // namespace tessaline
