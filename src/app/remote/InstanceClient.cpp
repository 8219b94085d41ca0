#include "app/remote/InstanceClient.h"

#include "app/remote/RemoteMessage.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace tessaline {

namespace {

/// A connected socket; negative: nobody listens.
class Connection {
public:
    explicit Connection(const QString& path) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const QByteArray name = QFile::encodeName(path);
        if (name.size() >= qsizetype(sizeof(address.sun_path))) return;
        std::memcpy(address.sun_path, name.constData(), std::size_t(name.size()));
        const int made = ::socket(AF_UNIX, SOCK_STREAM, 0);
        ::fcntl(made, F_SETFD, FD_CLOEXEC);
        ::fcntl(made, F_SETFL, O_NONBLOCK);
        if (::connect(made, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0) {
            descriptor = made;
        } else {
            ::close(made);
        }
    }

    ~Connection() {
        if (isOpen()) ::close(descriptor);
    }

    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    bool isOpen() const { return descriptor >= 0; }

    bool write(const QByteArray& bytes, InstanceClient::Clock::time_point deadline) const {
        qsizetype written = 0;
        while (written < bytes.size()) {
            if (!waitFor(POLLOUT, deadline)) return false;
            const auto count = ::write(descriptor, bytes.constData() + written,
                                       std::size_t(bytes.size() - written));
            if (count < 0 && (errno == EAGAIN || errno == EINTR)) continue;
            if (count < 0) return false;
            written += count;
        }
        return true;
    }

    /// A line without its end; none when it does not come, or is too long.
    std::optional<QByteArray> readLine(InstanceClient::Clock::time_point deadline) const {
        QByteArray bytes;
        std::array<char, 4096> part;
        while (bytes.size() < remoteMessage::mostBytes) {
            if (!waitFor(POLLIN, deadline)) return std::nullopt;
            const auto count = ::read(descriptor, part.data(), part.size());
            if (count < 0 && (errno == EAGAIN || errno == EINTR)) continue;
            if (count <= 0) return std::nullopt;
            bytes.append(part.data(), count);
            if (const auto end = bytes.indexOf('\n'); end >= 0) return bytes.first(end);
        }
        return std::nullopt;
    }

private:
    bool waitFor(short event, InstanceClient::Clock::time_point deadline) const {
        while (true) {
            const auto left = std::chrono::ceil<std::chrono::milliseconds>(
                deadline - InstanceClient::Clock::now());
            pollfd watched{.fd = descriptor, .events = event, .revents = 0};
            const int ready = ::poll(&watched, 1, int(std::max<long long>(left.count(), 0)));
            if (ready >= 0 || errno != EINTR) return ready > 0;
        }
    }

    int descriptor = -1;
};

} // namespace

InstanceClient::InstanceClient(QString socketPath) : path(std::move(socketPath)) {}

std::optional<RemoteAnswer> InstanceClient::ask(const RemoteRequest& request,
                                                Clock::time_point deadline) const {
    std::signal(SIGPIPE, SIG_IGN); // an instance that goes away is a failure like others
    const Connection connection(path);
    if (!connection.isOpen() || !connection.write(remoteMessage::encode(request), deadline))
        return std::nullopt;
    const auto line = connection.readLine(deadline);
    return line ? remoteMessage::decodeAnswer(*line) : std::nullopt;
}

} // namespace tessaline
