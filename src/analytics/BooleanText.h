#pragma once

#include <QString>

namespace tessaline {

/// The form that yes and no take in events and signals.
inline QString booleanText(bool value) {
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace tessaline
