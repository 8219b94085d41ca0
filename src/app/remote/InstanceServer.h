#pragma once

#include "app/remote/RemoteRequest.h"

#include <QLocalServer>
#include <QString>

#include <functional>
#include <list>
#include <memory>

class QLocalSocket;

namespace tessaline {

class RepeatingTimer;
class TimerMaker;

/// Hears later command lines of the same user: reads one request from each connection, answers it,
/// and closes. Who says nothing, too much or nothing that can be understood costs no more than a
/// moment of a connection.
class InstanceServer {
public:
    /// Takes the answer to a request, once, at any later time; nobody may be waiting any more.
    using Reply = std::function<void(const RemoteAnswer& answer)>;
    /// Carries a request out and replies.
    using Handler = std::function<void(const RemoteRequest& request, const Reply& reply)>;

    /// As many connections are open at a time; one more, and the oldest is dropped.
    static constexpr std::size_t mostConnections = 64;
    /// A connection that has not sent its request by then is dropped.
    static constexpr double secondsPerConnection = 5.0;

    /// Borrows the timers.
    InstanceServer(TimerMaker& timers, Handler handler);
    /// Stops to listen; connections break.
    ~InstanceServer();
    InstanceServer(const InstanceServer&) = delete;
    InstanceServer& operator=(const InstanceServer&) = delete;

    /// Begins to listen at this path, in place of whoever was killed there. The caller holds the
    /// lock that says that nobody else is alive, and the folder is the user's alone. False, with
    /// the reason in `problem`, where that is not possible.
    bool listen(const QString& path, QString* problem);

private:
    struct Connection {
        std::unique_ptr<QLocalSocket> socket;
        std::unique_ptr<RepeatingTimer> timeout;
        bool heard = false;
    };
    using Connections = std::list<Connection>;

    void acceptAll();
    void read(Connections::iterator connection);
    void handle(Connection& connection, const QByteArray& line);
    void drop(Connections::iterator connection);

    TimerMaker& timers;
    const Handler handler;
    QLocalServer server;
    Connections connections; ///< the oldest first
};

} // namespace tessaline
