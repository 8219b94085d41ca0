#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

namespace tessaline {

/// Posts JSON to a web server.
class HttpPoster {
public:
    /// What came of it.
    struct Answer {
        int status = 0;  ///< of HTTP; 0: there was none
        QString problem; ///< why there was none, in one line
    };
    using Handler = std::function<void(const Answer&)>;

    /// A post under way. Destroying it gives it up, whatever has left by then.
    class Post {
    public:
        virtual ~Post() = default;
    };

    virtual ~HttpPoster() = default;

    /// Posts `body` once. The handler is called later and once, as soon as the status is known or
    /// there will be none; it may destroy the post. Nobody but the server limits how long that
    /// takes.
    virtual std::unique_ptr<Post> post(const QUrl& address, const QByteArray& body,
                                       Handler handler) = 0;
};

} // namespace tessaline
