#include "app/remote/SingleInstance.h"

#include <chrono>
#include <thread>

namespace tessaline {

SingleInstance::Outcome
SingleInstance::join(const InstanceAddress& address,
                     const std::function<std::optional<RemoteRequest>()>& composeRequest,
                     InstanceClient::Clock::time_point deadline) {
    constexpr std::chrono::milliseconds pause{20};
    InstanceClient client(address.socketPath());
    std::optional<RemoteRequest> request;
    do {
        QString problem;
        if (auto lock = InstanceLock::take(address.lockPath(), &problem)) return lock;
        if (!problem.isEmpty()) return NoLock{problem};
        if (!request) request = composeRequest();
        if (!request) return NothingToAsk{};
        if (auto answer = client.ask(*request, deadline)) return std::move(*answer);
        std::this_thread::sleep_for(pause);
    } while (InstanceClient::Clock::now() < deadline);
    return Silence{};
}

} // namespace tessaline
