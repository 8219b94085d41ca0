#pragma once

#include "platform/ProcessRunner.h"

#include <vector>

namespace tessaline {

/// Runs nothing: keeps the calls and answers all of them with `result`.
class FakeProcessRunner final : public ProcessRunner {
public:
    struct Call {
        QString program;
        QStringList arguments;

        bool operator==(const Call&) const = default;
    };

    using ProcessRunner::run;
    ProcessResult run(const QString& program, const QStringList& arguments,
                      const ProcessLimits& limits) override {
        calls.push_back({program, arguments});
        lastLimits = limits;
        return result;
    }

    void stop() override { isStopped = true; }

    ProcessResult result;
    ProcessLimits lastLimits;
    bool isStopped = false;
    std::vector<Call> calls;
};

} // namespace tessaline
