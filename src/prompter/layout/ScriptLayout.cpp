#include "prompter/layout/ScriptLayout.h"

#include <QColor>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace tessaline {

namespace {

/// How many paragraphs around what was drawn last stay laid out.
constexpr std::size_t keptLayouts = 48;

constexpr QColor selectionColor(63, 99, 139);

} // namespace

ScriptLayout::ScriptLayout() {
    estimateAll();
}

void ScriptLayout::setScript(std::shared_ptr<const Script> script) {
    const ScriptChange change = ScriptChange::between(*currentScript, *script);
    setScript(std::move(script), change);
}

void ScriptLayout::setScript(std::shared_ptr<const Script> script, const ScriptChange& change) {
    const std::size_t oldCount = currentScript->paragraphs.size();
    const double oldGrowth = fontGrowth();
    currentScript = std::move(script);
    assignFormats();
    if (fontGrowth() != oldGrowth) return estimateAll();
    keepMeasured(change, oldCount);
}

void ScriptLayout::keepMeasured(const ScriptChange& change, std::size_t oldCount) {
    const std::size_t count = currentScript->paragraphs.size();
    const std::size_t newEnd = change.first + change.newCount;
    const auto oldIndex = [&](std::size_t index) {
        return index < change.first ? index : index + change.oldCount - change.newCount;
    };
    std::vector<double> newHeights(count);
    std::vector<bool> newMeasured(count);
    for (std::size_t index = 0; index < count; ++index) {
        const bool kept = index < change.first || index >= newEnd;
        newMeasured[index] = kept && measured[oldIndex(index)];
        newHeights[index] = kept ? heights.height(oldIndex(index))
                                 : estimatedHeight(*currentScript, index, formats, columnWidth);
    }
    std::map<std::size_t, ParagraphLayout> keptOnes;
    for (auto& [index, layout] : layouts) {
        if (index < change.first) {
            keptOnes.emplace(index, std::move(layout));
        } else if (index >= change.first + change.oldCount) {
            keptOnes.emplace(index + count - oldCount, std::move(layout));
        }
    }
    layouts = std::move(keptOnes);
    heights.assign(std::move(newHeights));
    measured = std::move(newMeasured);
    unmeasured = std::size_t(std::count(measured.begin(), measured.end(), false));
    nextToMeasure = 0;
}

void ScriptLayout::setTextWidth(double points) {
    if (points == columnWidth) return;
    columnWidth = points;
    estimateAll();
}

void ScriptLayout::setFontSize(double points) {
    if (points == bodySize) return;
    bodySize = points;
    assignFormats();
    estimateAll();
}

void ScriptLayout::setTypography(const Typography& wanted) {
    if (wanted == typography) return;
    typography = wanted;
    assignFormats();
    estimateAll();
}

void ScriptLayout::assignFormats() {
    formats.assign(currentScript->styles, fontGrowth(), typography);
}

double ScriptLayout::fontGrowth() const {
    const double written = currentScript->fontSize;
    return bodySize > 0.0 && written > 0.0 ? bodySize - written : 0.0;
}

double ScriptLayout::bodyLineHeight() const {
    const double size =
        currentScript->fontSize > 0.0 ? currentScript->fontSize + fontGrowth() : bodySize;
    return size > 0.0 ? lineHeightOf({.size = size}, typography) : formats.plain().lineHeight;
}

void ScriptLayout::estimateAll() {
    const std::size_t count = currentScript->paragraphs.size();
    std::vector<double> estimates(count);
    for (std::size_t index = 0; index < count; ++index)
        estimates[index] = estimatedHeight(*currentScript, index, formats, columnWidth);
    heights.assign(std::move(estimates));
    measured.assign(count, false);
    unmeasured = count;
    nextToMeasure = 0;
    layouts.clear();
}

void ScriptLayout::setMeasured(std::size_t index, double height) {
    if (heights.height(index) != height) heights.set(index, height);
    if (!measured[index]) --unmeasured;
    measured[index] = true;
}

double ScriptLayout::measureMore(qsizetype units, double anchor) {
    const std::size_t anchored = paragraphAt(anchor);
    const double before = topOf(anchored);
    for (; units > 0 && nextToMeasure < measured.size(); ++nextToMeasure) {
        const auto& paragraph = currentScript->paragraphs[nextToMeasure];
        if (measured[nextToMeasure]) continue;
        units -= paragraph.length + 1;
        if (paragraph.length == 0) {
            setMeasured(nextToMeasure, heights.height(nextToMeasure));
            continue;
        }
        setMeasured(nextToMeasure,
                    ParagraphLayout(*currentScript, nextToMeasure, formats, columnWidth).height());
    }
    return topOf(anchored) - before;
}

void ScriptLayout::measureBetween(double top, double bottom) {
    std::size_t index = paragraphAt(top);
    for (double y = topOf(index); y < bottom && index < measured.size(); ++index) {
        if (!measured[index]) measuredLayout(index);
        y += heights.height(index);
    }
}

std::vector<LineBox> ScriptLayout::linesBetween(double top, double bottom) {
    measureBetween(top, bottom);
    std::vector<LineBox> boxes;
    std::size_t index = paragraphAt(top);
    for (double y = topOf(index); index < measured.size(); ++index) {
        laidOut(index).appendLines(boxes, index, y);
        y += heights.height(index);
        if (y > bottom) break;
    }
    return boxes;
}

void ScriptLayout::measureAt(qsizetype offset) {
    measuredLayout(currentScript->paragraphOf(offset));
}

const ParagraphLayout& ScriptLayout::laidOut(std::size_t index) const {
    const auto [entry, isNew] = layouts.try_emplace(index);
    if (isNew) entry->second = ParagraphLayout(*currentScript, index, formats, columnWidth);
    return entry->second;
}

const ParagraphLayout& ScriptLayout::measuredLayout(std::size_t index) {
    const ParagraphLayout& layout = laidOut(index);
    setMeasured(index, layout.height());
    return layout;
}

void ScriptLayout::forgetLayoutsOutside(std::size_t first, std::size_t last) {
    if (layouts.size() <= 2 * keptLayouts) return;
    layouts.erase(layouts.begin(), layouts.lower_bound(first - std::min(first, keptLayouts / 2)));
    layouts.erase(layouts.upper_bound(last + keptLayouts / 2), layouts.end());
}

void ScriptLayout::draw(QPainter& painter, double top, double bottom, const TextRange& selection) {
    const std::size_t first = paragraphAt(top);
    std::size_t index = first;
    for (double y = topOf(first); y < bottom && index < measured.size(); ++index) {
        const ParagraphLayout& layout = measuredLayout(index);
        const Script::Paragraph& paragraph = currentScript->paragraphs[index];
        // Lines are placed in fixed point, which does not reach the end of very long documents.
        painter.translate(0, y);
        layout.draw(painter, top - y, bottom - y);
        const TextRange selected{selection.begin - paragraph.start,
                                 selection.end - paragraph.start};
        if (!selected.intersected({0, paragraph.length}).isEmpty()) {
            ParagraphLayout(*currentScript, index, formats.ofSelected(), columnWidth)
                .drawOver(painter, top - y, bottom - y, selected, selectionColor);
        }
        painter.translate(0, -y);
        y += layout.height();
    }
    forgetLayoutsOutside(first, index);
}

qsizetype ScriptLayout::offsetAt(const QPointF& point) const {
    const std::size_t index = paragraphAt(point.y());
    const ParagraphLayout& layout = laidOut(index);
    return currentScript->paragraphs[index].start +
           layout.positionAt({point.x(), point.y() - topOf(index)});
}

QRectF ScriptLayout::caretRect(qsizetype offset) const {
    const std::size_t index = currentScript->paragraphOf(offset);
    const ParagraphLayout& layout = laidOut(index);
    return layout.caretRect(offset - currentScript->paragraphs[index].start)
        .translated(0, topOf(index));
}

} // namespace tessaline
