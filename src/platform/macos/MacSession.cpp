#include "platform/DisplaySession.h"

namespace tessaline {

std::optional<QString> prepareDisplay() {
    return std::nullopt;
}

// A user has one session, and everything finds it.

QString displayOfSession(const SessionVariable& /*variable*/) {
    return {};
}

std::optional<QString> missingSession() {
    return std::nullopt;
}

} // namespace tessaline
