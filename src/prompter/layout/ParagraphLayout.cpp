#include "prompter/layout/ParagraphLayout.h"

#include <QTextOption>

#include <algorithm>
#include <cmath>

namespace tessaline {

namespace {

constexpr double tabStopDistance = 28.0;

/// However deep the indent, this share of the column is left for the text.
constexpr double leastTextShare = 0.25;

/// The run that a paragraph begins in; for an empty one that of its newline. Null at the text's
/// end.
const StyledText::Run* runOf(const Script& script, const Script::Paragraph& paragraph) {
    if (paragraph.start == script.styled.text.size()) return nullptr;
    return &script.styled.runs[std::size_t(paragraph.firstRun)];
}

const FormatTable::Entry& entryOf(const Script& script, const Script::Paragraph& paragraph,
                                  const FormatTable& formats) {
    const StyledText::Run* run = runOf(script, paragraph);
    return run ? formats[run->style] : formats.plain();
}

/// A paragraph's style as it holds for one of its pieces.
ParagraphStyle styleOf(const Script& script, const Script::Paragraph& paragraph) {
    const StyledText::Run* run = runOf(script, paragraph);
    if (!run) return {};
    ParagraphStyle style = script.styled.attributes(*run).paragraph.value_or(ParagraphStyle{});
    if (paragraph.continuesPrevious) {
        style.firstLineHeadIndent = style.headIndent;
        style.spacingBefore = 0;
    }
    if (paragraph.continuesInNext) style.spacingAfter = 0;
    return style;
}

QList<QTextLayout::FormatRange>
formatRanges(const Script& script, const Script::Paragraph& paragraph, const FormatTable& formats) {
    QList<QTextLayout::FormatRange> ranges;
    const qsizetype end = paragraph.start + paragraph.length;
    const auto& runs = script.styled.runs;
    for (auto run = std::size_t(paragraph.firstRun); run < runs.size() && runs[run].start < end;
         ++run) {
        const qsizetype from = std::max(runs[run].start, paragraph.start);
        const qsizetype to = std::min(runs[run].start + runs[run].length, end);
        ranges.push_back(
            {int(from - paragraph.start), int(to - from), formats[runs[run].style].format});
    }
    return ranges;
}

/// The entry that the whole paragraph looks like, or null where it takes more than a font and a
/// pen. Text that is not split into formats is laid out in half the time.
const FormatTable::Entry* singleEntry(const Script& script, const Script::Paragraph& paragraph,
                                      const FormatTable& formats) {
    const StyledText::Run* run = runOf(script, paragraph);
    if (!run || paragraph.length == 0) return &entryOf(script, paragraph, formats);
    const bool single = run->start + run->length >= paragraph.start + paragraph.length;
    if (!single || script.styled.attributes(*run).background) return nullptr;
    return &formats[run->style];
}

double fittingIndent(double indent, double tail, double textWidth) {
    return std::clamp(indent, 0.0, std::max(textWidth * (1 - leastTextShare) - tail, 0.0));
}

QTextOption textOption(const ParagraphStyle& style, bool rightToLeft) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(tabStopDistance);
    option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    if (style.alignment == ParagraphStyle::Alignment::center) {
        option.setAlignment(Qt::AlignHCenter);
    } else {
        option.setAlignment(rightToLeft ? Qt::AlignRight : Qt::AlignLeft);
    }
    return option;
}

} // namespace

ParagraphLayout layOutParagraph(const Script& script, std::size_t index, const FormatTable& formats,
                                double textWidth) {
    const Script::Paragraph& paragraph = script.paragraphs[index];
    const ParagraphStyle style = styleOf(script, paragraph);
    const QString text = script.textOf(paragraph).toString();
    const bool rightToLeft = text.isRightToLeft();
    const double tail = std::max(-style.tailIndent, 0.0);

    const FormatTable::Entry* single = singleEntry(script, paragraph, formats);
    const FormatTable::Entry& base = single ? *single : formats.plain();

    ParagraphLayout result;
    result.lines = std::make_unique<QTextLayout>(text, base.font);
    result.pen = base.format.foreground().color();
    QTextLayout& layout = *result.lines;
    layout.setCacheEnabled(true);
    layout.setTextOption(textOption(style, rightToLeft));
    if (!single) layout.setFormats(formatRanges(script, paragraph, formats));

    double y = style.spacingBefore;
    double indent = style.firstLineHeadIndent;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        const double head = fittingIndent(indent, tail, textWidth);
        line.setLeadingIncluded(true);
        line.setLineWidth(textWidth - head - tail);
        line.setPosition({rightToLeft ? tail : head, y});
        y += line.height();
        indent = style.headIndent;
    }
    layout.endLayout();
    result.height = y + style.spacingAfter;
    return result;
}

double estimatedHeight(const Script& script, std::size_t index, const FormatTable& formats,
                       double textWidth) {
    const Script::Paragraph& paragraph = script.paragraphs[index];
    const ParagraphStyle style = styleOf(script, paragraph);
    const FormatTable::Entry& entry = entryOf(script, paragraph, formats);
    const double width = std::max(textWidth - style.headIndent, textWidth * leastTextShare);
    const double lines = std::ceil(double(paragraph.length) * entry.averageAdvance / width);
    return style.spacingBefore + std::max(lines, 1.0) * entry.lineHeight + style.spacingAfter;
}

} // namespace tessaline
