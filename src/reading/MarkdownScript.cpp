#include "reading/MarkdownScript.h"

#include "reading/MarkdownText.h"
#include "reading/ParagraphCutter.h"
#include "render/CommonEnds.h"
#include "render/markdown/MarkdownLine.h"
#include "render/markdown/MarkdownRenderer.h"

#include <algorithm>
#include <utility>

namespace tessaline {

namespace {

using Fence = ScriptParagraph::Fence;

/// Styles stay in the table of a script that is changed again and again; beyond so many they are
/// sorted out by making the script anew.
constexpr std::size_t mostStyles = 512;

/// Makes the script of one text, line by line.
class ScriptMaker {
public:
    ScriptMaker(const QString& markdown, double fontSize)
        : content(markdown.left(StyledText::longest)), renderer(MarkdownRenderer(fontSize)) {}

    ScriptMaker(const QString& markdown, const Script& beforeScript, const MarkdownText& beforeText)
        : content(markdown.left(StyledText::longest))
        , renderer(beforeText.rendererCopy())
        , before(&beforeScript)
        , beforeSource(&beforeText)
        , common(CommonEnds::of(content, beforeText.markdown())) {
        takeBeginning();
    }

    Script make() {
        while (!isDone)
            addNextLine();
        renderer.clear();
        Script script;
        script.paragraphs = std::move(cutter.paragraphs);
        script.styles = renderer.current().styles;
        script.fontSize = renderer.fontSize();
        auto text = std::make_shared<MarkdownText>(content, renderer);
        text->longLines = std::move(longLines);
        script.source = std::move(text);
        return script;
    }

private:
    void takeBeginning();
    bool takeEnd();
    void copy(std::size_t first, std::size_t last, qsizetype originShift);
    void addNextLine();
    void addFence();
    void addLine(QStringView line);
    void addParagraph(const StyledText& line, qsizetype origin, int newlineStyle);
    void joinCode();
    void finish(bool endsWithLine);

    QString content;
    DocumentRenderer renderer;
    ParagraphCutter cutter;
    std::map<int, MarkdownText::LongLine> longLines;
    qsizetype position = 0; ///< where the next line begins
    Fence fence = Fence::outside;
    bool isDone = false;

    const Script* before = nullptr;
    const MarkdownText* beforeSource = nullptr;
    CommonEnds common;
};

/// Takes over the paragraphs whose lines are the same, newlines included.
void ScriptMaker::takeBeginning() {
    const qsizetype firstOther =
        common.beginning == 0 ? 0 : content.lastIndexOf(u'\n', common.beginning - 1) + 1;
    const auto end =
        std::ranges::lower_bound(before->paragraphs, firstOther, {}, &ScriptParagraph::origin);
    copy(0, std::size_t(end - before->paragraphs.begin()), 0);
    if (cutter.paragraphs.empty()) return;
    ScriptParagraph& last = cutter.paragraphs.back();
    const QStringView line = lineAt(content, last.origin);
    position = last.origin + line.size() + 1;
    if (last.fence == Fence::outside || isCodeFence(line)) return;
    fence = Fence::within;
    if (last.length == 0) last.style = renderer.plainStyle();
}

/// Takes over the remaining paragraphs, if they are the same from this line on.
bool ScriptMaker::takeEnd() {
    if (!before || position <= content.size() - common.end) return false;
    const auto shift = content.size() - beforeSource->markdown().size();
    const auto same = std::ranges::lower_bound(before->paragraphs, position - shift, {},
                                               &ScriptParagraph::origin);
    if (same == before->paragraphs.end() || same->origin != position - shift ||
        same->fence != fence)
        return false;
    joinCode();
    copy(std::size_t(same - before->paragraphs.begin()), before->paragraphs.size(), shift);
    return isDone = true;
}

void ScriptMaker::copy(std::size_t first, std::size_t last, qsizetype originShift) {
    if (first == last) return;
    const auto* paragraphs = before->paragraphs.data();
    const std::size_t newFirst = cutter.paragraphs.size();
    cutter.copy(paragraphs + first, paragraphs + last, int(originShift));
    const int startShift = cutter.paragraphs[newFirst].start - paragraphs[first].start;
    const auto& lines = beforeSource->longLines;
    const auto end = lines.upper_bound(paragraphs[last - 1].origin);
    for (auto line = lines.lower_bound(paragraphs[first].origin); line != end; ++line) {
        longLines.emplace(
            line->first + int(originShift),
            MarkdownText::LongLine{line->second.start + startShift, line->second.line});
    }
}

void ScriptMaker::addNextLine() {
    if (takeEnd()) return;
    const QStringView line = lineAt(content, position);
    const bool isLast = position + line.size() == content.size();
    const bool isFence = isCodeFence(line);
    if (isFence) {
        addFence();
    } else {
        addLine(line);
    }
    position += line.size() + 1;
    if (isLast) finish(!isFence && fence == Fence::outside);
}

/// A block without lines leaves an empty one.
void ScriptMaker::addFence() {
    if (fence == Fence::atOpening) addParagraph({}, position, renderer.plainStyle());
    fence = fence == Fence::outside ? Fence::atOpening : Fence::outside;
}

void ScriptMaker::addLine(QStringView line) {
    if (fence == Fence::atOpening && line.isEmpty()) return;
    const bool isCode = fence != Fence::outside;
    joinCode();
    addParagraph(renderLine(renderer, line, isCode), position, renderer.plainStyle());
    if (isCode) fence = Fence::within;
}

/// The newline before another line of a block is code as well.
void ScriptMaker::joinCode() {
    if (fence == Fence::within && cutter.paragraphs.back().length == 0)
        cutter.paragraphs.back().style = renderer.codeStyle();
}

void ScriptMaker::addParagraph(const StyledText& line, qsizetype origin, int newlineStyle) {
    const ScriptParagraph like{.origin = int(origin), .style = newlineStyle, .fence = fence};
    const std::size_t first = cutter.paragraphs.size();
    if (!cutter.append(line.text, line.runs, like)) {
        isDone = true;
    } else if (cutter.paragraphs.size() > first + 1) {
        longLines[like.origin] = {cutter.paragraphs[first].start,
                                  std::make_shared<const StyledFragment>(copyOf(line))};
    }
}

/// After a newline, the text's end is an empty paragraph.
void ScriptMaker::finish(bool endsWithLine) {
    isDone = true;
    if (!endsWithLine) return addParagraph({}, content.size(), -1);
    ScriptParagraph& last = cutter.paragraphs.back();
    if (last.length == 0) last.style = -1;
}

} // namespace

Script markdownScript(const QString& markdown, double fontSize, const Script* before) {
    const auto* text = before ? dynamic_cast<const MarkdownText*>(before->source.get()) : nullptr;
    if (!text || before->fontSize != fontSize || before->styles.size() > mostStyles)
        return ScriptMaker(markdown, fontSize).make();
    return ScriptMaker(markdown, *before, *text).make();
}

} // namespace tessaline
