#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace tessaline {

/// Which of Qt's platforms the program should run on.
struct DisplayChoice {
    using Environment = std::function<QString(const char* name)>;

    /// Decides from environment variables, of which an empty one counts as unset. The X server is
    /// preferred to Wayland, which does not let a window choose its place.
    static DisplayChoice from(const Environment& variable);

    std::optional<QString> problem;  ///< why there is nothing to show the prompter on, in one line
    std::optional<QString> platform; ///< none: the choice is the user's or Qt's
};

} // namespace tessaline
