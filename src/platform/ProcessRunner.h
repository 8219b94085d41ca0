#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>

namespace tessaline {

/// What a program left behind when it ended.
struct ProcessResult {
    QString output;            ///< standard output, trimmed; empty if it is not UTF-8
    QString error;             ///< standard error, likewise; why it did not start if it did not
    std::int32_t exitCode = 0; ///< -1: did not start or was killed

    bool operator==(const ProcessResult&) const = default;
};

/// Runs programs, with no shell in between. Any thread.
class ProcessRunner {
public:
    virtual ~ProcessRunner() = default;

    /// Starts the program and waits until it ends.
    virtual ProcessResult run(const QString& program, const QStringList& arguments) = 0;

    /// Kills the programs that run, within a moment, and starts no others: for the end of our own
    /// program, which should not wait for theirs.
    virtual void stop() = 0;
};

} // namespace tessaline
