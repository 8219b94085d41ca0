#pragma once

#include <QtGlobal>

#include <chrono>
#include <cstddef>
#include <map>
#include <vector>

namespace tessaline {

/// The pages that are connected: how many there may be, and how much each may say.
class PageCrowd {
public:
    using Client = quint64;
    using Time = std::chrono::steady_clock::time_point;

    static constexpr std::size_t most = 8;
    static constexpr double messagesPerSecond = 40.0;
    static constexpr double messagesAtOnce = 80.0;

    bool hasRoom() const { return members.size() < most; }
    std::size_t size() const { return members.size(); }

    void add(Client client, Time now);
    void remove(Client client) { members.erase(client); }

    /// Counts a message; false when that was one too many.
    bool mayTell(Client client, Time now);

    std::vector<Client> all() const;

private:
    struct Budget {
        double messages = messagesAtOnce;
        Time counted;
    };

    std::map<Client, Budget> members;
};

} // namespace tessaline
