#include "remote/page/PageCrowd.h"

#include <algorithm>

namespace tessaline {

void PageCrowd::add(Client client, Time now) {
    members[client] = {messagesAtOnce, now};
}

std::vector<PageCrowd::Client> PageCrowd::all() const {
    std::vector<Client> clients;
    clients.reserve(members.size());
    for (const auto& [client, budget] : members)
        clients.push_back(client);
    return clients;
}

bool PageCrowd::mayTell(Client client, Time now) {
    const auto member = members.find(client);
    if (member == members.end()) return false;
    Budget& budget = member->second;
    const std::chrono::duration<double> passed = now - budget.counted;
    budget.counted = now;
    budget.messages =
        std::min(messagesAtOnce, budget.messages + passed.count() * messagesPerSecond) - 1.0;
    return budget.messages >= 0.0;
}

} // namespace tessaline
