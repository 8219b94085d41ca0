#include "support/FakeNetwork.h"

namespace tessaline {

class FakeNetwork::Reply final : public QNetworkReply {
public:
    Reply(Operation operation, const QNetworkRequest& request, QObject* parent)
        : QNetworkReply(parent) {
        setOperation(operation);
        setRequest(request);
        setUrl(request.url());
        open(QIODevice::ReadOnly);
    }

    void answer(int status) {
        setAttribute(QNetworkRequest::HttpStatusCodeAttribute, status);
        finish();
    }

    void fail(NetworkError error, const QString& description) {
        setError(error, description);
        finish();
    }

    void abort() override {
        if (!isFinished()) fail(OperationCanceledError, QStringLiteral("Operation canceled"));
    }

private:
    void finish() {
        setFinished(true);
        Q_EMIT finished();
    }

    qint64 readData(char* /*data*/, qint64 /*size*/) override { return -1; }
};

std::size_t FakeNetwork::pending() const {
    std::size_t count = 0;
    for (const auto& reply : waiting)
        count += reply && !reply->isFinished() ? 1 : 0;
    return count;
}

void FakeNetwork::answer(int status) {
    takeFirst().answer(status);
}

void FakeNetwork::fail() {
    takeFirst().fail(QNetworkReply::ConnectionRefusedError, QStringLiteral("Connection refused"));
}

QNetworkReply* FakeNetwork::createRequest(Operation operation, const QNetworkRequest& request,
                                          QIODevice* body) {
    requests.push_back({operation, request, body ? body->readAll() : QByteArray()});
    auto* const reply = new Reply(operation, request, this);
    waiting.emplace_back(reply);
    return reply;
}

FakeNetwork::Reply& FakeNetwork::takeFirst() {
    Reply& first = *waiting.front();
    waiting.erase(waiting.begin());
    return first;
}

} // namespace tessaline
