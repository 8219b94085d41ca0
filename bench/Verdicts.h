#pragma once

#include <QString>

#include <cstdio>

namespace tessaline {

/// Prints measured values beside the most that is wanted of them.
class Verdicts {
public:
    void judge(const QString& what, double value, double limit, const char* unit) {
        const bool passes = value <= limit;
        std::printf("%-52s %9.3f %s, at most %g wanted: %s\n", qPrintable(what), value, unit, limit,
                    passes ? "pass" : "falls short");
        std::fflush(stdout);
        allPass = allPass && passes;
    }

    /// 0 if nothing fell short.
    int exitStatus() const { return allPass ? 0 : 1; }

private:
    bool allPass = true;
};

} // namespace tessaline
