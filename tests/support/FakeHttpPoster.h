#pragma once

#include "platform/HttpPoster.h"

#include <cstddef>
#include <list>
#include <utility>
#include <vector>

namespace tessaline {

/// Keeps the posts that are made, in order, until the test answers them. Main thread only.
class FakeHttpPoster final : public HttpPoster {
public:
    struct Request {
        QUrl address;
        QByteArray body;
    };

    /// What was posted so far, answered or not.
    std::vector<Request> requests;

    /// How many posts wait for their answer.
    std::size_t pending() const { return waiting.size(); }

    /// Answers the post that waits longest with this HTTP status. There must be one.
    void answer(int status) { giveAnswer({.status = status, .problem = {}}); }

    /// The same post fails without an answer.
    void fail() { giveAnswer({.status = 0, .problem = QStringLiteral("Connection refused")}); }

    std::unique_ptr<Post> post(const QUrl& address, const QByteArray& body,
                               Handler handler) override {
        requests.push_back({address, body});
        return std::make_unique<Waiting>(*this, std::move(handler));
    }

private:
    using Handlers = std::list<Handler>;

    class Waiting final : public Post {
    public:
        Waiting(FakeHttpPoster& owner, Handler handler)
            : poster(owner)
            , place(poster.waiting.insert(poster.waiting.end(), std::move(handler))) {}
        ~Waiting() override { poster.waiting.erase(place); }
        Waiting(const Waiting&) = delete;
        Waiting& operator=(const Waiting&) = delete;

    private:
        FakeHttpPoster& poster;
        const Handlers::iterator place;
    };

    void giveAnswer(const Answer& answer) {
        const Handler handler = waiting.front(); // the post goes while it is called
        handler(answer);
    }

    Handlers waiting;
};

} // namespace tessaline
