#pragma once

#include <QStringView>

#include <cstdint>
#include <span>

namespace tessaline {

/// What an option or an action takes, as the parser, the help and the completions know it.
struct CommandValue {
    enum class Kind : std::uint8_t { text, file };

    QStringView name;                     ///< how the help calls it; empty: nothing is taken
    std::span<const QStringView> choices; ///< all there are; empty: anything
    Kind kind = Kind::text;

    bool isTaken() const { return !name.isEmpty(); }
};

} // namespace tessaline
