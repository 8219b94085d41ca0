#include "MedianReporter.h"

#include <limits>

namespace tessaline {

void MedianReporter::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.aggregate_name == "median") {
            medians[run.run_name.function_name] =
                run.GetAdjustedCPUTime() * 1e3 / benchmark::GetTimeUnitMultiplier(run.time_unit);
        }
    }
}

double MedianReporter::milliseconds(const std::string& name) const {
    const auto found = medians.find(name);
    return found != medians.end() ? found->second : std::numeric_limits<double>::quiet_NaN();
}

void takeMedian(benchmark::internal::Benchmark* benchmark) {
    benchmark->Unit(benchmark::kMillisecond)->Repetitions(9)->ReportAggregatesOnly();
}

} // namespace tessaline
