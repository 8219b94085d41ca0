#include "SteadyMemory.h"
#include "Verdicts.h"

#include "render/markdown/MarkdownRenderer.h"
#include "sources/notes/HtmlToMarkdown.h"
#include "support/texts/PathologicalTexts.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <limits>
#include <span>

namespace {

using namespace Qt::Literals::StringLiterals;
using tessaline::MarkdownRenderer;
using tessaline::PathologicalText;

constexpr int runs = 5;

constexpr PathologicalText notes[] = {
    {"LessThans", u"<"},           {"GreaterThans", u">"},       {"Ampersands", u"&"},
    {"Semicolons", u";"},          {"BlankLines", u"\n"},        {"Spaces", u" "},
    {"TwiceEscaped", u"&amp;lt;"}, {"Entities", u"&nbsp;"},      {"TagsLeftOpen", u"<b"},
    {"Openings", u"<b>"},          {"Closings", u"</b>"},        {"Headings", u"<h1>"},
    {"Breaks", u"<br>"},           {"Items", u"<ul><li>a</li>"}, {"Divisions", u"<div>a</div>"},
};

using Operation = std::function<void(QStringView)>;

double cpuMilliseconds(const Operation& operation, QStringView text) {
    const std::clock_t start = std::clock();
    operation(text);
    return 1e3 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// How often the operation's time for a text goes into its time for twice as much, at the worst of
/// the texts. The quickest runs are compared: other programs only ever lengthen them.
double worstGrowth(const char* name, std::span<const PathologicalText> texts, qsizetype length,
                   const Operation& operation) {
    double worst = 0;
    for (const PathologicalText& text : texts) {
        const QString twice = text.make(2 * length);
        double half = std::numeric_limits<double>::infinity();
        double whole = half;
        for (int run = 0; run < runs; ++run) {
            half = std::min(half, cpuMilliseconds(operation, QStringView(twice).left(length)));
            whole = std::min(whole, cpuMilliseconds(operation, twice));
        }
        const double growth = whole / half;
        std::printf("%-38s %-8s %8.1f ms %8.1f ms  %.2f-fold\n", text.name, name, half, whole,
                    growth);
        std::fflush(stdout);
        worst = std::max(worst, growth);
    }
    return worst;
}

} // namespace

/// Renders and counts texts, and converts notes, that make careless scanners quadratic, at a length
/// (10 million UTF-16 units unless the argument says otherwise) and at twice that. Exits with 1
/// when some time grows by more than is wanted.
int main(int argc, char** argv) {
    const qsizetype length = argc > 1 ? std::atoll(argv[1]) : 10'000'000;
    if (length <= 0) {
        std::fprintf(stderr, "usage: %s [UNITS]\n", argv[0]);
        return 2;
    }
    tessaline::makeMemorySteady();
    const auto texts = tessaline::pathologicalTexts();
    const double rendering = worstGrowth(
        "render", texts, length, [](QStringView part) { MarkdownRenderer(24).render(part); });
    const double counting = worstGrowth(
        "count", texts, length, [](QStringView part) { MarkdownRenderer::wordCount(part); });
    const double conversion = worstGrowth("convert", notes, length, [](QStringView part) {
        tessaline::convertHtmlToMarkdown(QString::fromRawData(part.data(), part.size()));
    });
    tessaline::Verdicts verdicts;
    const QString what = u"%1 twice as much nasty text: worst of %2 kinds"_s;
    verdicts.judge(what.arg(u"Rendering"_s).arg(texts.size()), rendering, 2.3, "times");
    verdicts.judge(what.arg(u"Counting"_s).arg(texts.size()), counting, 2.3, "times");
    verdicts.judge(what.arg(u"Converting from HTML"_s).arg(std::size(notes)), conversion, 2.3,
                   "times");
    return verdicts.exitStatus();
}
