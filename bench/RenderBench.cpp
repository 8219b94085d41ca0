#include "MedianReporter.h"
#include "SampleTalk.h"
#include "Verdicts.h"

#include "render/markdown/MarkdownRenderer.h"

#include <QGuiApplication>
#include <QTextDocument>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <optional>

namespace {

using namespace Qt::Literals::StringLiterals;
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

BENCHMARK(setMarkdown)->Apply(tessaline::takeMedian);
BENCHMARK(render)->Apply(tessaline::takeMedian);
BENCHMARK(wordCount)->Apply(tessaline::takeMedian);

} // namespace

/// Renders and counts a talk of 100,000 words beside what Qt's own Markdown reader takes for it.
/// Exits with 1 when a share is too large.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    const QGuiApplication application(argc, argv);

    tessaline::MedianReporter medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    std::printf("\n");
    tessaline::Verdicts verdicts;
    const auto share = [&](const char* name) {
        return medians.milliseconds(name) / medians.milliseconds("setMarkdown") * 100;
    };
    verdicts.judge(u"Rendering 100,000 words, share of `QTextDocument::setMarkdown`'s time"_s,
                   share("render"), 100.0 / 15, "%");
    verdicts.judge(u"Counting 100,000 words, share of the same"_s, share("wordCount"), 100.0 / 20,
                   "%");
    return verdicts.exitStatus();
}
