#pragma once

#include "app/remote/InstanceAddress.h"
#include "app/remote/InstanceClient.h"
#include "app/remote/InstanceLock.h"

#include <QJsonObject>

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
    /// Somebody is, but there was no message to send.
    struct NothingToSay {};
    using Outcome = std::variant<IsUs, QJsonObject, Silence, NoLock, NothingToSay>;

    /// Becomes the instance or, while another process is, sends it the message, which is asked for
    /// only then and may be none, and waits for its answer until the deadline. An instance that is
    /// just starting or ending is waited for.
    static Outcome join(const InstanceAddress& address,
                        const std::function<std::optional<QJsonObject>()>& composeMessage,
                        InstanceClient::Clock::time_point deadline);
};

} // namespace tessaline
