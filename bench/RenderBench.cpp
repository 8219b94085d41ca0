#include "MedianReporter.h"
#include "SampleTalk.h"

#include "render/MarkdownRenderer.h"

#include <QGuiApplication>
#include <QTextDocument>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <optional>

namespace {

using tessaline::MarkdownRenderer;
using tessaline::StyledText;

const QString& talk() {
    static const QString text = tessaline::SampleTalk().write(100'000);
    return text;
}

void setMarkdown(benchmark::State& state) {
    while (state.KeepRunning()) {
        state.PauseTiming();
        std::optional<QTextDocument> document(std::in_place);
        state.ResumeTiming();
        document->setMarkdown(talk());
        state.PauseTiming();
        document.reset();
        state.ResumeTiming();
    }
}

void render(benchmark::State& state) {
    while (state.KeepRunning()) {
        StyledText styled = MarkdownRenderer(24).render(talk());
        benchmark::DoNotOptimize(styled.text.data());
        state.PauseTiming();
        styled = {};
        state.ResumeTiming();
    }
}

void wordCount(benchmark::State& state) {
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(MarkdownRenderer::wordCount(talk()));
    }
}

BENCHMARK(setMarkdown)->Unit(benchmark::kMillisecond)->Repetitions(9)->ReportAggregatesOnly();
BENCHMARK(render)->Unit(benchmark::kMillisecond)->Repetitions(9)->ReportAggregatesOnly();
BENCHMARK(wordCount)->Unit(benchmark::kMillisecond)->Repetitions(9)->ReportAggregatesOnly();

/// Prints how often `name` goes into setMarkdown's time, and whether that suffices.
bool compare(const tessaline::MedianReporter& medians, const char* name, double wanted) {
    const double ratio = medians.milliseconds("setMarkdown") / medians.milliseconds(name);
    const bool passes = ratio >= wanted;
    std::printf("%-10s 1/%.1f of setMarkdown's time, at most 1/%.0f wanted: %s\n", name, ratio,
                wanted, passes ? "pass" : "falls short");
    return passes;
}

} // namespace

/// Renders and counts a talk of 100,000 words beside what Qt's own Markdown reader takes for it.
/// Exits with 1 when a ratio falls short.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    const QGuiApplication application(argc, argv);

    tessaline::MedianReporter medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    std::printf("\n%lld words, %lld UTF-16 units, medians of CPU time:\n",
                static_cast<long long>(MarkdownRenderer::wordCount(talk())),
                static_cast<long long>(talk().size()));
    const bool rendersInTime = compare(medians, "render", 15);
    const bool countsInTime = compare(medians, "wordCount", 20);
    return rendersInTime && countsInTime ? 0 : 1;
}
