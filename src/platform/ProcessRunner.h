#pragma once

#include <QString>
#include <QStringList>

#include <chrono>
#include <cstdint>
#include <optional>

namespace tessaline {

/// How far a program may go; without a value, as far as it likes.
struct ProcessLimits {
    enum class Kind { time, output };

    std::optional<std::chrono::seconds> time;
    std::optional<qint64> outputBytes;  ///< on standard output
    std::optional<quint64> memoryBytes; ///< of its address space; what goes beyond is refused to it

    bool operator==(const ProcessLimits&) const = default;
};

/// What a program left behind when it ended.
struct ProcessResult {
    QString output;            ///< standard output, trimmed; empty if it is not UTF-8
    QString error;             ///< standard error, likewise; why it did not start if it did not
    std::int32_t exitCode = 0; ///< -1: did not start or was killed
    bool hasStarted = true;
    std::optional<ProcessLimits::Kind> exceeded; ///< the limit that it was killed for

    bool operator==(const ProcessResult&) const = default;
};

/// Runs programs, with no shell in between. Any thread.
class ProcessRunner {
public:
    virtual ~ProcessRunner() = default;

    /// Starts the program and waits until it ends, or kills it where it goes beyond the limits.
    virtual ProcessResult run(const QString& program, const QStringList& arguments,
                              const ProcessLimits& limits) = 0;

    ProcessResult run(const QString& program, const QStringList& arguments) {
        return run(program, arguments, {});
    }

    /// Kills the programs that run, within a moment, and starts no others: for the end of our own
    /// program, which should not wait for theirs.
    virtual void stop() = 0;
};

} // namespace tessaline
