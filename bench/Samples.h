#pragma once

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <utility>
#include <vector>

namespace tessaline {

/// Processor time that this thread has used, in milliseconds. What other threads and programs do
/// meanwhile is not counted.
inline double threadMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/// The sample that `percent` of all are at most as large as; there has to be one.
inline double percentile(std::vector<double> samples, std::size_t percent) {
    const auto index = samples.size() * percent / 100;
    std::nth_element(samples.begin(), samples.begin() + std::ptrdiff_t(index), samples.end());
    return samples[index];
}

/// Other programs that get their turn in between lengthen single samples; hence medians.
inline double median(std::vector<double> samples) {
    return percentile(std::move(samples), 50);
}

} // namespace tessaline
