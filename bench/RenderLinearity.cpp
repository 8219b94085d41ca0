#include "SteadyMemory.h"

#include "render/MarkdownRenderer.h"
#include "render/PathologicalTexts.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>

namespace {

using tessaline::MarkdownRenderer;

constexpr double mostPerDoubling = 2.3;
constexpr std::size_t runs = 5;

using Operation = std::function<void(QStringView)>;

double cpuMilliseconds(const Operation& operation, QStringView text) {
    const std::clock_t start = std::clock();
    operation(text);
    return 1e3 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

double median(std::array<double, runs> times) {
    std::sort(times.begin(), times.end());
    return times[runs / 2];
}

/// Whether the operation takes at most `mostPerDoubling` times as long for twice the text.
bool isLinear(const char* name, const char* operationName, const QString& twice,
              const Operation& operation) {
    const QStringView whole(twice);
    const QStringView half = whole.left(whole.size() / 2);
    std::array<double, runs> halfTimes{};
    std::array<double, runs> wholeTimes{};
    for (std::size_t run = 0; run < runs; ++run) {
        halfTimes[run] = cpuMilliseconds(operation, half);
        wholeTimes[run] = cpuMilliseconds(operation, whole);
    }
    const double ratio = median(wholeTimes) / median(halfTimes);
    const bool passes = ratio <= mostPerDoubling;
    std::printf("%-38s %-6s %8.1f ms %8.1f ms  %.2f-fold  %s\n", name, operationName,
                median(halfTimes), median(wholeTimes), ratio, passes ? "pass" : "falls short");
    std::fflush(stdout);
    return passes;
}

} // namespace

/// Renders and counts texts that make careless scanners quadratic, at a length (10 million UTF-16
/// units unless the argument says otherwise) and at twice that. Exits with 1 when some time grows
/// by more than `mostPerDoubling`.
int main(int argc, char** argv) {
    const qsizetype length = argc > 1 ? std::atoll(argv[1]) : 10'000'000;
    if (length <= 0) {
        std::fprintf(stderr, "usage: %s [UNITS]\n", argv[0]);
        return 2;
    }
    tessaline::makeMemorySteady();
    std::printf("%lld and %lld units, medians of the CPU time of %zu runs, at most %.1f-fold\n",
                static_cast<long long>(length), static_cast<long long>(2 * length), runs,
                mostPerDoubling);
    bool allLinear = true;
    for (const tessaline::PathologicalText& text : tessaline::pathologicalTexts()) {
        const QString twice = text.make(2 * length);
        allLinear &= isLinear(text.name, "render", twice,
                              [](QStringView part) { MarkdownRenderer(24).render(part); });
        allLinear &= isLinear(text.name, "count", twice,
                              [](QStringView part) { MarkdownRenderer::wordCount(part); });
    }
    return allLinear ? 0 : 1;
}
