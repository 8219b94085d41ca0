#include "remote/page/PageSessions.h"

#include <utility>

namespace tessaline {

PageSessions::PageSessions(RandomBytes source) : random(std::move(source)) {}

QByteArray PageSessions::open() {
    if (tokens.size() == most) tokens.pop_front();
    return tokens.emplace_back(newSecret(random));
}

bool PageSessions::isOpen(QByteArrayView token) const {
    bool isOpen = false;
    for (const QByteArray& each : tokens)
        isOpen = isSameSecret(token, each) || isOpen; // looks at all, found or not
    return isOpen;
}

} // namespace tessaline
