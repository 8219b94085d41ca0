#include "prompter/layout/ParagraphLayout.h"

#include <QGlyphRun>
#include <QPainter>
#include <QPainterPath>
#include <QTextOption>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessaline {

namespace {

constexpr double tabStopDistance = 28.0;

/// However deep the indent, this share of the column is left for the text.
constexpr double leastTextShare = 0.25;

const FormatTable::Entry& entryOf(const Script::Paragraph& paragraph, const FormatTable& formats) {
    return paragraph.style < 0 ? formats.plain() : formats[paragraph.style];
}

/// A paragraph's style as it holds for one of its pieces.
ParagraphStyle styleOf(const Script& script, std::size_t index) {
    const TextAttributes* attributes = script.attributes(index);
    if (!attributes) return {};
    const Script::Paragraph& paragraph = script.paragraphs[index];
    ParagraphStyle style = attributes->paragraph.value_or(ParagraphStyle{});
    if (paragraph.continuesPrevious) {
        style.firstLineHeadIndent = style.headIndent;
        style.spacingBefore = 0;
    }
    if (paragraph.continuesInNext) style.spacingAfter = 0;
    return style;
}

double fittingIndent(double indent, double tail, double textWidth) {
    return std::clamp(indent, 0.0, std::max(textWidth * (1 - leastTextShare) - tail, 0.0));
}

QTextOption textOption(const ParagraphStyle& style, bool rightToLeft, double scale) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(tabStopDistance / scale);
    option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    if (style.alignment == ParagraphStyle::Alignment::center) {
        option.setAlignment(Qt::AlignHCenter);
    } else {
        option.setAlignment(rightToLeft ? Qt::AlignRight : Qt::AlignLeft);
    }
    return option;
}

/// From where to where a range reaches on a line, from left to right. Where text runs both ways it
/// may be in several places.
std::vector<std::pair<double, double>> stretches(const QTextLayout& text, const QTextLine& line,
                                                 const TextRange& range) {
    std::vector<std::pair<double, double>> found;
    for (const QGlyphRun& run : line.glyphRuns(int(range.begin), int(range.length())))
        found.emplace_back(run.boundingRect().left(), run.boundingRect().right());
    for (auto i = int(range.begin); i < range.end; ++i) {
        if (text.text()[i] == u'\t') // which has no glyph
            found.push_back(std::minmax({line.cursorToX(i), line.cursorToX(i + 1)}));
    }
    std::sort(found.begin(), found.end());
    std::vector<std::pair<double, double>> joined;
    for (const auto& [left, right] : found) {
        if (joined.empty() || left > joined.back().second) {
            joined.emplace_back(left, right);
        } else {
            joined.back().second = std::max(joined.back().second, right);
        }
    }
    return joined;
}

} // namespace

ParagraphLayout::ParagraphLayout(const Script& script, std::size_t index,
                                 const FormatTable& formats, double textWidth) {
    const ParagraphStyle style = styleOf(script, index);
    const FormatTable::Entry& first = entryOf(script.paragraphs[index], formats);
    const StyledFragment content = script.content(index);
    const bool rightToLeft = content.text.isRightToLeft();

    pen = first.format.foreground().color();
    scale = first.scale; // fonts of other sizes in the paragraph have the same fraction
    text = std::make_unique<QTextLayout>(content.text, first.font);
    text->setCacheEnabled(true);
    text->setTextOption(textOption(style, rightToLeft, scale));
    setFormats(content.runs, formats);
    breakLines(style, rightToLeft, textWidth, formats.lineSpacing());
}

void ParagraphLayout::setFormats(const std::vector<StyledText::Run>& runs,
                                 const FormatTable& formats) {
    // Text that is not split into formats is laid out in half the time.
    const bool alike = runs.size() <= 1;
    QList<QTextLayout::FormatRange> ranges;
    for (const auto& run : runs) {
        const FormatTable::Entry& entry = formats[run.style];
        if (entry.background.isValid())
            grounds.push_back({{run.start, run.start + run.length}, entry.background});
        if (!alike) ranges.push_back({run.start, run.length, entry.format});
    }
    if (!alike) text->setFormats(ranges);
}

void ParagraphLayout::breakLines(const ParagraphStyle& style, bool rightToLeft, double textWidth,
                                 double lineSpacing) {
    const double tail = std::max(-style.tailIndent, 0.0);
    double y = style.spacingBefore;
    double indent = style.firstLineHeadIndent;
    text->beginLayout();
    for (QTextLine line = text->createLine(); line.isValid(); line = text->createLine()) {
        const double head = fittingIndent(indent, tail, textWidth);
        line.setLineWidth((textWidth - head - tail) / scale);
        line.setPosition({(rightToLeft ? tail : head) / scale, 0});
        const double height =
            scaledLineHeight(line.ascent() + line.descent(), line.leading(), scale);
        const double extra = extraLineHeight(height, lineSpacing);
        lines.push_back({y, height + extra, std::floor(extra / 2)});
        y += height + extra;
        indent = style.headIndent;
    }
    text->endLayout();
    wholeHeight = y + style.spacingAfter;
}

std::pair<std::size_t, std::size_t> ParagraphLayout::linesBetween(double top, double bottom) const {
    std::size_t first = 0;
    while (first < lines.size() && lines[first].top + lines[first].height < top)
        ++first;
    std::size_t last = first;
    while (last < lines.size() && lines[last].top < bottom)
        ++last;
    return {first, last};
}

void ParagraphLayout::draw(QPainter& painter, double top, double bottom) const {
    const auto [first, last] = linesBetween(top, bottom);
    // All grounds before any text, which may reach into the lines around its own.
    for (std::size_t line = first; line < last; ++line) {
        for (const auto& [range, color] : grounds) {
            for (const QRectF& place : placesOf(int(line), range))
                painter.fillRect(place, color);
        }
    }
    const QTransform unscaled = painter.transform();
    painter.setPen(pen);
    for (std::size_t line = first; line < last; ++line) {
        painter.translate(0, lines[line].top + lines[line].textTop);
        painter.scale(scale, scale);
        text->lineAt(int(line)).draw(&painter, {0, 0});
        painter.setTransform(unscaled);
    }
}

void ParagraphLayout::drawOver(QPainter& painter, double top, double bottom, const TextRange& range,
                               const QColor& ground) const {
    QPainterPath places;
    places.setFillRule(Qt::WindingFill);
    const auto [first, last] = linesBetween(top, bottom);
    for (std::size_t line = first; line < last; ++line) {
        for (const QRectF& place : placesOf(int(line), range))
            places.addRect(place);
    }
    if (places.isEmpty()) return;
    painter.save();
    painter.setClipPath(places, Qt::IntersectClip);
    painter.fillRect(places.boundingRect(), ground);
    draw(painter, top, bottom);
    painter.restore();
}

/// Where a range is on a line, as high as the line, so that the next one follows without a gap.
std::vector<QRectF> ParagraphLayout::placesOf(int line, const TextRange& wanted) const {
    const QTextLine textLine = text->lineAt(line);
    const int begin = textLine.textStart();
    const TextRange range = wanted.intersected({begin, begin + textLine.textLength()});
    if (range.isEmpty()) return {};
    const auto& [top, height, textTop] = lines[std::size_t(line)];
    std::vector<QRectF> places;
    for (const auto& [from, to] : stretches(*text, textLine, range)) {
        const double left = std::floor(from * scale);
        places.emplace_back(left, top, std::ceil(to * scale) - left, height);
    }
    return places;
}

void ParagraphLayout::appendLines(std::vector<LineBox>& boxes, std::size_t paragraph,
                                  double top) const {
    for (std::size_t line = 0; line < lines.size(); ++line) {
        boxes.push_back({paragraph, text->lineAt(int(line)).textStart(), top + lines[line].top,
                         lines[line].height});
    }
}

qsizetype ParagraphLayout::positionAt(const QPointF& point) const {
    std::size_t line = 0;
    while (line + 1 < lines.size() && lines[line + 1].top <= point.y())
        ++line;
    return text->lineAt(int(line)).xToCursor(point.x() / scale);
}

QRectF ParagraphLayout::caretRect(qsizetype position) const {
    int cursor = int(std::clamp<qsizetype>(position, 0, text->text().size()));
    const QTextLine line = text->lineForTextPosition(cursor);
    if (!line.isValid()) return {0, 0, 0, wholeHeight};
    const auto& [top, height, textTop] = lines[std::size_t(line.lineNumber())];
    return {line.cursorToX(&cursor) * scale, top, 0, height};
}

double estimatedHeight(const Script& script, std::size_t index, const FormatTable& formats,
                       double textWidth) {
    const Script::Paragraph& paragraph = script.paragraphs[index];
    const ParagraphStyle style = styleOf(script, index);
    const FormatTable::Entry& entry = entryOf(paragraph, formats);
    const double width = std::max(textWidth - style.headIndent, textWidth * leastTextShare);
    const double lines = std::ceil(double(paragraph.length) * entry.averageAdvance / width);
    return style.spacingBefore + std::max(lines, 1.0) * entry.lineHeight + style.spacingAfter;
}

} // namespace tessaline
