#include "app/remote/SingleInstance.h"

#include <chrono>
#include <thread>

namespace tessaline {

SingleInstance::Outcome
SingleInstance::join(const InstanceAddress& address,
                     const std::function<std::optional<QJsonObject>()>& composeMessage,
                     InstanceClient::Clock::time_point deadline) {
    constexpr std::chrono::milliseconds pause{20};
    InstanceClient client(address.socketPath());
    std::optional<QJsonObject> message;
    do {
        QString problem;
        if (auto lock = InstanceLock::take(address.lockPath(), &problem)) return lock;
        if (!problem.isEmpty()) return NoLock{problem};
        if (!message) message = composeMessage();
        if (!message) return NothingToSay{};
        if (auto answer = client.ask(*message, deadline)) return std::move(*answer);
        std::this_thread::sleep_for(pause);
    } while (InstanceClient::Clock::now() < deadline);
    return Silence{};
}

} // namespace tessaline
