#pragma once

#include "remote/web/HttpRequest.h"
#include "remote/web/WebAnswer.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <memory>

namespace tessaline {

/// Serves a site to browsers, and web sockets to its pages. Main thread.
class WebServer {
public:
    /// A page that is connected by a web socket.
    using Client = quint64;

    /// What is served. None of these may end the service.
    class Site {
    public:
        virtual ~Site() = default;
        /// What a request from an address, in digits, gets.
        virtual WebAnswer answer(const HttpRequest& request, const QByteArray& address) = 0;
        virtual void joined(Client client) = 0;
        virtual void told(Client client, const QString& message) = 0;
        /// Comes for everybody who joined, dropped ones included, until the service ends.
        virtual void left(Client client) = 0;
    };

    /// Goes on until it is destroyed; all connections end then.
    class Service {
    public:
        virtual ~Service() = default;
        /// One that does not keep up is dropped instead.
        virtual void tell(Client client, const QString& message) = 0;
        virtual void drop(Client client) = 0;
    };

    struct Place {
        QString address; ///< in digits
        quint16 port = 0;

        bool operator==(const Place&) const = default;
    };

    virtual ~WebServer() = default;

    /// Begins to serve a site, which is borrowed. Null where that cannot be, for the reason in
    /// `problem`: one line, without a full stop.
    virtual std::unique_ptr<Service> serve(const Place& place, Site& site, QString* problem) = 0;

    /// This machine's addresses in its networks, as they are now.
    virtual QStringList networkAddresses() = 0;
};

} // namespace tessaline
