#pragma once

#include <QString>

#include <memory>
#include <optional>

namespace tessaline {

/// What the program is started with.
struct PrompterStart {
    int& argc;
    char** argv;
    std::optional<QString> text; ///< shown as if it had been pasted
    QString path;                ///< the lasting file that it is of, or that has to be read first
    bool follow = false;         ///< show that file again whenever it changes
    QString socketPath;          ///< where later command lines are heard; empty: nowhere
};

/// Runs the prompter until the user or the session ends it. Returns the exit status. Where there is
/// no display, says so on standard error at once.
int runPrompter(const PrompterStart& start);

} // namespace tessaline
