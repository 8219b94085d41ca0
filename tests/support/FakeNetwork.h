#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>

#include <cstddef>
#include <vector>

namespace tessaline {

/// Keeps the requests that are made, in order, until the test answers them. Main thread only.
class FakeNetwork final : public QNetworkAccessManager {
public:
    struct Request {
        Operation operation;
        QNetworkRequest request;
        QByteArray body;
    };

    /// What was asked for so far, answered or not.
    std::vector<Request> requests;

    /// How many requests wait for their answer.
    std::size_t pending() const;

    /// Answers the request that waits longest with this HTTP status. There must be one.
    void answer(int status);

    /// The same request fails without an answer.
    void fail();

private:
    class Reply;

    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request,
                                 QIODevice* body) override;
    Reply& takeFirst();

    std::vector<QPointer<Reply>> waiting;
};

} // namespace tessaline
