#pragma once

#include <QByteArray>

#include <chrono>
#include <cstddef>
#include <list>
#include <vector>

namespace tessaline {

/// Keeps those from trying on who tell a wrong secret again and again.
class PairingLimit {
public:
    using Time = std::chrono::steady_clock::time_point;

    static constexpr std::size_t mostWrongTries = 5; ///< of one address
    static constexpr std::chrono::seconds memory{60};
    /// So many addresses are remembered; one more, and the oldest is forgotten. The secret is safe
    /// from guessing without that: whoever has as many addresses gains nothing but tries.
    static constexpr std::size_t mostAddresses = 256;

    bool mayTry(const QByteArray& address, Time now);
    void failed(const QByteArray& address, Time now);

private:
    struct Tries {
        QByteArray address;
        std::vector<Time> wrong; ///< the oldest first
    };

    std::list<Tries>::iterator find(const QByteArray& address);
    void forgetOld(Time now);

    std::list<Tries> known; ///< the one that failed last is the last one
};

} // namespace tessaline
