#include "reading/pace/ReadingProgress.h"

#include "reading/ReadingView.h"
#include "reading/Script.h"
#include "reading/pace/SpokenWordIndex.h"
#include "reading/pace/SpokenWords.h"

#include <algorithm>
#include <iterator>

namespace tessaline {

ReadingProgress::ReadingProgress(const Script& borrowedScript, const SpokenWordIndex& borrowedIndex,
                                 ReadingView& borrowedView)
    : script(borrowedScript), index(borrowedIndex), view(borrowedView) {}

std::vector<PacedLine> ReadingProgress::withWords(const std::vector<LineBox>& boxes) const {
    std::vector<PacedLine> lines;
    lines.reserve(boxes.size());
    std::vector<int> starts; // of the words of the paragraph at hand
    for (auto box = boxes.begin(); box != boxes.end(); ++box) {
        if (box == boxes.begin() || box->paragraph != std::prev(box)->paragraph) {
            starts =
                spokenWordStarts(script.content(box->paragraph).text, script.kind(box->paragraph));
        }
        const auto next = std::next(box);
        const bool isLast = next == boxes.end() || next->paragraph != box->paragraph;
        const auto first = std::lower_bound(starts.begin(), starts.end(), box->start);
        const auto last =
            isLast ? starts.end() : std::lower_bound(first, starts.end(), next->start);
        lines.push_back({box->top, box->height, double(last - first)});
    }
    return lines;
}

ReadingProgress::Lines ReadingProgress::linesBetween(double top, double bottom) const {
    const std::vector<LineBox> boxes = view.linesBetween(top, bottom);
    if (boxes.empty()) return {{{}}, 0.0};
    return {withWords(boxes), double(index.before(script, boxes.front().paragraph))};
}

double ReadingProgress::wordsAbove(double y) const {
    const auto [lines, above] = linesBetween(y, y);
    double words = above;
    for (const PacedLine& line : lines) {
        if (line.height <= 0.0) continue;
        words += line.words * std::clamp((y - line.top) / line.height, 0.0, 1.0);
    }
    return words;
}

double ReadingProgress::wordsRead() const {
    return wordsAbove(view.readerPosition());
}

double ReadingProgress::wordsInAll() const {
    return wordsAbove(view.lastReaderPosition());
}

} // namespace tessaline
