#include "reading/Script.h"

#include "reading/ParagraphCutter.h"

#include <algorithm>
#include <utility>

namespace tessaline {

namespace {

/// A text that was styled as a whole.
class WholeText final : public ScriptSource {
public:
    explicit WholeText(StyledText styledText) : styled(std::move(styledText)) {}

    StyledFragment paragraph(const ScriptParagraph& paragraph) const override {
        return fragmentOf(styled.text, styled.runs, paragraph.start, paragraph.length);
    }

private:
    StyledText styled;
};

/// The style of the newline at an offset; -1 at the text's end.
int newlineStyle(const StyledText& styled, qsizetype offset) {
    if (offset >= styled.text.size()) return -1;
    return fragmentOf(styled.text, styled.runs, offset, 1).runs.front().style;
}

} // namespace

Script::Script() : Script(StyledText{}) {}

Script::Script(StyledText styled) : styles(styled.styles), fontSize(styled.fontSize) {
    removeCarriageReturns(styled);
    const QStringView text(styled.text);
    ParagraphCutter cutter;
    cutter.paragraphs.reserve(std::size_t(text.count(u'\n')) + 1);
    for (qsizetype start = 0; start <= text.size();) {
        const qsizetype newline = text.indexOf(u'\n', start);
        const qsizetype end = newline < 0 ? text.size() : newline;
        const StyledFragment line = fragmentOf(text, styled.runs, start, end - start);
        cutter.append(line.text, line.runs,
                      {.style = start == end ? newlineStyle(styled, end) : -1});
        start = end + 1;
    }
    paragraphs = std::move(cutter.paragraphs);
    source = std::make_shared<const WholeText>(std::move(styled));
}

qsizetype Script::length() const {
    return qsizetype(paragraphs.back().start) + paragraphs.back().length;
}

QString Script::text(qsizetype begin, qsizetype end) const {
    begin = std::clamp<qsizetype>(begin, 0, length());
    end = std::clamp<qsizetype>(end, begin, length());
    const std::size_t first = paragraphOf(begin);
    QString result;
    result.reserve(end - begin);
    for (std::size_t i = first; i < paragraphs.size() && paragraphs[i].start < end; ++i) {
        result += content(i).text;
        if (!paragraphs[i].continuesInNext) result += u'\n';
    }
    return result.mid(begin - paragraphs[first].start, end - begin);
}

StyledFragment Script::content(std::size_t index) const {
    const Paragraph& paragraph = paragraphs[index];
    return paragraph.length == 0 ? StyledFragment{} : source->paragraph(paragraph);
}

const TextAttributes* Script::attributes(std::size_t index) const {
    const int style = paragraphs[index].style;
    return style < 0 ? nullptr : &styles[std::size_t(style)];
}

std::size_t Script::paragraphOf(qsizetype offset) const {
    const auto next = std::upper_bound(
        paragraphs.begin() + 1, paragraphs.end(), offset,
        [](qsizetype value, const Paragraph& paragraph) { return value < paragraph.start; });
    return std::size_t(next - paragraphs.begin()) - 1;
}

ParagraphKind Script::kind(std::size_t index) const {
    const TextAttributes* its = attributes(index);
    return its && its->paragraph ? its->paragraph->kind : ParagraphKind::body;
}

int Script::headingLevel(std::size_t index) const {
    const Paragraph& paragraph = paragraphs[index];
    if (paragraph.length == 0 || paragraph.continuesPrevious) return 0;
    const auto& style = attributes(index)->paragraph;
    return style ? style->headingLevel : 0;
}

bool Script::hasSameParagraph(std::size_t index, const Script& other,
                              std::size_t otherIndex) const {
    const Paragraph& mine = paragraphs[index];
    const Paragraph& its = other.paragraphs[otherIndex];
    if (mine.length != its.length || mine.continuesPrevious != its.continuesPrevious ||
        mine.continuesInNext != its.continuesInNext ||
        !hasSameAttributes(mine.style, other, its.style))
        return false;
    if (mine.length == 0 || hasSameOrigin(mine, other, its)) return true;

    const StyledFragment myContent = content(index);
    const StyledFragment itsContent = other.content(otherIndex);
    return myContent.text == itsContent.text &&
           std::ranges::equal(
               myContent.runs, itsContent.runs, [&](const auto& myRun, const auto& itsRun) {
                   return myRun.start == itsRun.start && myRun.length == itsRun.length &&
                          hasSameAttributes(myRun.style, other, itsRun.style);
               });
}

bool Script::hasSameOrigin(const Paragraph& mine, const Script& other, const Paragraph& its) const {
    using Fence = Paragraph::Fence;
    if (!mine.isWholeLine() || fontSize != other.fontSize ||
        (mine.fence == Fence::outside) != (its.fence == Fence::outside))
        return false;
    const auto myOrigin = source->originOf(mine);
    return myOrigin && myOrigin == other.source->originOf(its);
}

bool Script::hasSameAttributes(int style, const Script& other, int otherStyle) const {
    if (style < 0 || otherStyle < 0) return style == otherStyle;
    return styles[std::size_t(style)] == other.styles[std::size_t(otherStyle)];
}

} // namespace tessaline
