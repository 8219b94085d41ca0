#pragma once

#include "remote/page/PageOrigin.h"
#include "remote/page/PageSessions.h"
#include "remote/page/PairingLimit.h"
#include "remote/page/Secret.h"
#include "remote/web/HttpRequest.h"
#include "remote/web/WebAnswer.h"

#include <QByteArray>

#include <functional>
#include <optional>

namespace tessaline {

/// Decides what a browser gets of the page. Who has not told the secret gets the page on which to
/// tell it, and nothing else.
class PageGate {
public:
    /// What lies behind the gate.
    struct Content {
        std::function<QByteArray(const QByteArray& name)> file; ///< of the page's own
        /// A part of the script by its name; none when there is no such part.
        std::function<std::optional<QByteArray>(const QByteArray& name)> scriptPart;
        std::function<bool()> hasRoom; ///< for one more web socket
    };

    PageGate(const PageOrigin& origin, Content content, const RandomBytes& random);

    /// What a request from the address gets.
    WebAnswer answer(const HttpRequest& request, const QByteArray& address, PairingLimit::Time now);

    const QByteArray& secret() const { return currentSecret; }

    /// Ends all sessions; there is another secret from now on.
    void renew();

private:
    HttpReply reply(const HttpRequest& request, int status) const;
    HttpReply fileReply(const HttpRequest& request, const QByteArray& name) const;
    HttpReply pair(const HttpRequest& request, const QByteArray& address, PairingLimit::Time now);
    HttpReply get(const HttpRequest& request) const;
    bool hasSession(const HttpRequest& request) const;
    QByteArray cookieName() const;

    const PageOrigin origin;
    const Content content;
    const RandomBytes random;
    QByteArray currentSecret;
    PageSessions sessions;
    PairingLimit limit;
};

} // namespace tessaline
