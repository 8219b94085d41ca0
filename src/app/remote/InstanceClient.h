#pragma once

#include "app/remote/RemoteRequest.h"

#include <QString>

#include <chrono>
#include <optional>

namespace tessaline {

/// Talks to the running instance. Waits; needs no application object. Makes the process ignore
/// SIGPIPE.
class InstanceClient {
public:
    using Clock = std::chrono::steady_clock;

    explicit InstanceClient(QString socketPath);

    /// Sends the request and waits for the answer until the deadline. None where nobody listens,
    /// and where the instance hangs, goes away or does not speak our language.
    std::optional<RemoteAnswer> ask(const RemoteRequest& request, Clock::time_point deadline) const;

private:
    const QString path;
};

} // namespace tessaline
