#pragma once

#include <optional>

class QKeyEvent;

namespace tessaline {

/// What a key of the prompter's asks for: the keys of presenter remotes and their like.
struct PrompterKey {
    enum class Deed { startOrStop, faster, slower, toHeading, black, mirror, guide, keys };

    Deed deed;
    int heading = 0; ///< counted from 1

    /// None for a key that asks for nothing. One that is held repeats only what takes steps.
    static std::optional<PrompterKey> of(const QKeyEvent& event);
};

} // namespace tessaline
