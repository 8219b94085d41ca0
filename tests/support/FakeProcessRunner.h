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

    ProcessResult run(const QString& program, const QStringList& arguments) override {
        calls.push_back({program, arguments});
        return result;
    }

    void stop() override { isStopped = true; }

    ProcessResult result;
    bool isStopped = false;
    std::vector<Call> calls;
};

} // namespace tessaline
