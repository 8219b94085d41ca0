#pragma once

#include "app/remote/InstanceAddress.h"
#include "app/remote/InstanceClient.h"
#include "app/remote/InstanceLock.h"
#include "app/remote/RemoteRequest.h"

#include <functional>
#include <memory>
#include <optional>
#include <variant>

namespace tessaline {

/// Decides between being the one instance and talking to it.
class SingleInstance {
public:
    /// Nobody else is the instance while the lock is held.
    using IsUs = std::unique_ptr<InstanceLock>;
    /// Somebody is, but does not answer.
    struct Silence {};
    /// Nobody can tell whether somebody is.
    struct NoLock {
        QString problem;
    };
    /// Somebody is, but there was nothing to ask for.
    struct NothingToAsk {};
    using Outcome = std::variant<IsUs, RemoteAnswer, Silence, NoLock, NothingToAsk>;

    /// Becomes the instance or, while another process is, sends it the request, which is composed
    /// only then and may be none, and waits for its answer until the deadline. An instance that is
    /// just starting or ending is waited for.
    static Outcome join(const InstanceAddress& address,
                        const std::function<std::optional<RemoteRequest>()>& composeRequest,
                        InstanceClient::Clock::time_point deadline);
};

} // namespace tessaline
