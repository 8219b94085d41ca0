#pragma once

#include "platform/ProcessRunner.h"

#include <atomic>

namespace tessaline {

/// Runs programs as child processes with empty standard input. Output of any length is taken in
/// while they run. Any thread.
class QtProcessRunner final : public ProcessRunner {
public:
    using ProcessRunner::run;
    ProcessResult run(const QString& program, const QStringList& arguments,
                      const ProcessLimits& limits) override;
    void stop() override { stopping = true; }

private:
    std::atomic<bool> stopping = false;
};

} // namespace tessaline
