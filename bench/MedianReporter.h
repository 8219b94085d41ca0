#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace tessaline {

/// Prints benchmarks to the console as usual, and remembers their medians.
class MedianReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override;

    /// The median CPU time of the repetitions of a benchmark; not a number if it did not run.
    double milliseconds(const std::string& name) const;

private:
    std::map<std::string, double> medians;
};

/// Has a benchmark repeated as often as a median needs.
void takeMedian(benchmark::internal::Benchmark* benchmark);

} // namespace tessaline
