#include "app/remote/SingleInstance.h"

#include <chrono>
#include <optional>
#include <thread>

namespace tessaline {

SingleInstance::Outcome SingleInstance::join(const InstanceAddress& address,
                                             const std::function<QJsonObject()>& composeMessage,
                                             InstanceClient::Clock::time_point deadline) {
    constexpr std::chrono::milliseconds pause{20};
    InstanceClient client(address.socketPath());
    std::optional<QJsonObject> message;
    do {
        if (auto lock = InstanceLock::take(address.lockPath())) return lock;
        if (!message) message = composeMessage();
        if (auto answer = client.ask(*message, deadline)) return std::move(*answer);
        std::this_thread::sleep_for(pause);
    } while (InstanceClient::Clock::now() < deadline);
    return Silence{};
}

} // namespace tessaline
