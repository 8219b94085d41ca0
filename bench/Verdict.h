#pragma once

#include <QString>

#include <cstdio>

namespace tessaline {

/// Prints a measured value beside the most that is wanted of it. Returns whether it suffices.
inline bool verdict(const QString& what, double value, double limit, const char* unit) {
    const bool passes = value <= limit;
    std::printf("%-52s %9.3f %s, at most %g wanted: %s\n", qPrintable(what), value, unit, limit,
                passes ? "pass" : "falls short");
    std::fflush(stdout);
    return passes;
}

} // namespace tessaline
