#include "remote/page/PairingLimit.h"

#include <algorithm>

namespace tessaline {

std::list<PairingLimit::Tries>::iterator PairingLimit::find(const QByteArray& address) {
    return std::find_if(known.begin(), known.end(),
                        [&address](const Tries& tries) { return tries.address == address; });
}

void PairingLimit::forgetOld(Time now) {
    for (Tries& tries : known)
        std::erase_if(tries.wrong, [now](Time time) { return now - time >= memory; });
    known.remove_if([](const Tries& tries) { return tries.wrong.empty(); });
}

bool PairingLimit::mayTry(const QByteArray& address, Time now) {
    forgetOld(now);
    const auto tries = find(address);
    return tries == known.end() || tries->wrong.size() < mostWrongTries;
}

void PairingLimit::failed(const QByteArray& address, Time now) {
    forgetOld(now);
    const auto tries = find(address);
    if (tries != known.end()) {
        tries->wrong.push_back(now);
        known.splice(known.end(), known, tries);
        return;
    }
    if (known.size() == mostAddresses) known.pop_front();
    known.push_back({address, {now}});
}

} // namespace tessaline
