#include "render/markdown/WordTally.h"

#include "render/CommonEnds.h"
#include "render/markdown/CountablePieces.h"
#include "render/markdown/WordCount.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace tessaline {

namespace {

/// In UTF-16 units: so many are counted again for a change of one.
constexpr qsizetype shortestPiece = 4096;

} // namespace

qsizetype WordTally::count(const QString& markdown) {
    const CommonEnds common = CommonEnds::of(counted, markdown);
    const qsizetype shift = markdown.size() - counted.size();
    const std::vector<Piece> before = std::exchange(pieces, {});
    counted = markdown;

    const auto firstChanged = std::ranges::lower_bound(before, common.beginning, {}, &Piece::end);
    pieces.assign(before.begin(), firstChanged);
    auto unchanged =
        std::ranges::upper_bound(before, counted.size() - common.end - shift, {}, &Piece::end);
    CountablePieces remaining(counted, shortestPiece, pieces.empty() ? 0 : pieces.back().end);
    while (!remaining.isAtEnd()) {
        while (unchanged != before.end() && unchanged->end + shift <= remaining.position())
            ++unchanged;
        const bool isLast = unchanged == before.end();
        const qsizetype goal = isLast ? counted.size() : unchanged->end + shift;
        const qsizetype words = countWords(remaining.next(goal), counted.size());
        pieces.push_back({remaining.position(), words});
        if (isLast || remaining.position() != goal) continue;
        for (++unchanged; unchanged != before.end(); ++unchanged)
            pieces.push_back({unchanged->end + shift, unchanged->words});
        break;
    }
    return std::accumulate(pieces.begin(), pieces.end(), qsizetype(0),
                           [](qsizetype sum, const Piece& piece) { return sum + piece.words; });
}

} // namespace tessaline
