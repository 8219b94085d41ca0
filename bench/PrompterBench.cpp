#include "MedianReporter.h"
#include "SampleTalk.h"
#include "Samples.h"
#include "Verdicts.h"

#include "platform/MainQueue.h"
#include "platform/TaskRunner.h"
#include "prompter/view/ScriptView.h"
#include "reading/ContentRenderer.h"
#include "reading/ReadingSession.h"
#include "settings/PersistedSettings.h"
#include "settings/ReadingOptions.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QFont>
#include <QLocale>
#include <QTextDocument>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace {

using namespace Qt::Literals::StringLiterals;
using tessaline::ScriptView;
using tessaline::threadMilliseconds;
using tessaline::Verdicts;

constexpr double fontSize = 16;
constexpr double columnWidth = 400;

QString talk(qsizetype words) {
    return tessaline::SampleTalk().write(words);
}

/// A view of the size that it has in a prompter of 450 × 256 points, on screen.
class ShownView {
public:
    ShownView() {
        view.resize(430, 202);
        view.show();
    }

    /// Everything from a text's arrival to pixels that are ready to be seen.
    void show(const QString& markdown) {
        benchmark::DoNotOptimize(arriving.count(markdown));
        renderer.render(markdown, [this](tessaline::RenderedContent content) {
            session->setContent(std::move(content));
        });
        view.repaint();
    }

private:
    /// For what is too long to be rendered at once, which no text here is.
    struct NoTasks : tessaline::TaskRunner, tessaline::MainQueue {
        void run(std::function<void()>) override {}
        void post(std::function<void()>) override {}
    };

    NoTasks none;
    tessaline::ContentRenderer renderer{none, none};
    tessaline::WordTally arriving; ///< the source manager's
    tessaline::PersistedSettings settings;
    tessaline::ReadingOptions options;
    std::shared_ptr<tessaline::ReadingSession> session =
        std::make_shared<tessaline::ReadingSession>(settings, options);

public:
    ScriptView view{session};
};

void setMarkdownAndLayOut(benchmark::State& state) {
    const QString text = talk(10'000);
    for (auto _ : state) {
        state.PauseTiming();
        auto document = std::make_unique<QTextDocument>();
        QFont font;
        font.setPointSizeF(fontSize * 0.75);
        document->setDefaultFont(font);
        document->setTextWidth(columnWidth);
        state.ResumeTiming();
        document->setMarkdown(text);
        benchmark::DoNotOptimize(document->documentLayout()->documentSize());
        state.PauseTiming();
        document.reset();
        state.ResumeTiming();
    }
}

/// A text that comes into an empty view, until its picture is there or until all of it is laid out.
void showInNewView(benchmark::State& state, bool completely) {
    const QString text = talk(10'000);
    for (auto _ : state) {
        state.PauseTiming();
        auto shown = std::make_unique<ShownView>();
        state.ResumeTiming();
        shown->show(text);
        if (completely) shown->view.completeLayout();
        state.PauseTiming();
        shown.reset();
        state.ResumeTiming();
    }
}

void arrivalOnScreen(benchmark::State& state) {
    showInNewView(state, false);
}
void arrivalLaidOut(benchmark::State& state) {
    showInNewView(state, true);
}

void editOfOneLine(benchmark::State& state) {
    const QString text = talk(100'000);
    QString edited = text;
    edited.insert(text.indexOf(u'\n', text.size() / 2), QStringLiteral(" and some more"));
    ShownView shown;
    shown.show(text);
    shown.view.completeLayout();
    bool original = true;
    for (auto _ : state) {
        original = !original;
        shown.show(original ? text : edited);
    }
}

BENCHMARK(setMarkdownAndLayOut)->Apply(tessaline::takeMedian);
BENCHMARK(arrivalOnScreen)->Apply(tessaline::takeMedian);
BENCHMARK(arrivalLaidOut)->Apply(tessaline::takeMedian);
BENCHMARK(editOfOneLine)->Apply(tessaline::takeMedian);

/// Scrolls through a text frame by frame and tells how long the painting of a frame takes.
void measureFrames(qsizetype words, Verdicts& verdicts, const tessaline::ScriptLook& look = {},
                   const QString& lookName = {}) {
    ShownView shown;
    shown.view.setLook(look);
    shown.show(talk(words));
    shown.view.completeLayout();
    std::vector<double> times;
    for (int frame = 1; frame <= 4000; ++frame) {
        shown.view.scrollTo(frame * 0.16);
        const double begin = threadMilliseconds();
        shown.view.repaint();
        times.push_back(threadMilliseconds() - begin);
        QCoreApplication::processEvents(); // the time between frames, in which strips are prepared
    }
    const QString what = u"A frame of 430 × 202 points, %1 words%2: "_s.arg(
        QLocale(QLocale::English).toString(words), lookName);
    verdicts.judge(what + u"median"_s, tessaline::median(times), 0.4, "ms");
    verdicts.judge(what + u"99th percentile"_s, tessaline::percentile(times, 99), 1.0, "ms");
}

} // namespace

/// Measures what the prompter's view costs: frames, the arrival of a text, and an edit of one line.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);

    tessaline::MedianReporter medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    std::printf("\n");
    Verdicts verdicts;
    const double reference = medians.milliseconds("setMarkdownAndLayOut");
    const auto share = [&](const char* name) {
        return medians.milliseconds(name) / reference * 100;
    };
    verdicts.judge(u"10,000 words until on screen, share of `setMarkdown` and its layout"_s,
                   share("arrivalOnScreen"), 60, "%");
    verdicts.judge(u"10,000 words until every line is laid out, share of the same"_s,
                   share("arrivalLaidOut"), 60, "%");
    verdicts.judge(u"One edited line in 100,000 words, to ready pixels"_s,
                   medians.milliseconds("editOfOneLine"), 10, "ms");
    for (const qsizetype words : {1'000, 10'000, 100'000})
        measureFrames(words, verdicts);
    measureFrames(10'000, verdicts, {.frame = {.mirroring = tessaline::Mirroring::both}},
                  u", mirrored"_s);
    measureFrames(10'000, verdicts,
                  {.frame = {.mirroring = tessaline::Mirroring::both, .groundOpacity = 0.6}},
                  u", mirrored, clear"_s);
    return verdicts.exitStatus();
}
