#pragma once

#include "reading/pace/PacePlan.h"

#include <vector>

namespace tessaline {

class ReadingView;
class SpokenWordIndex;
struct LineBox;
struct Script;

/// How much of a script has been read, in spoken words as the lines of a view hold them. Made for
/// one question or a few. Heights are points from the document's top.
class ReadingProgress {
public:
    /// All are borrowed.
    ReadingProgress(const Script& script, const SpokenWordIndex& index, ReadingView& view);

    /// The words above a height, with a fraction of the line that it is in.
    double wordsAbove(double y) const;

    /// The words above the line that is being read.
    double wordsRead() const;

    /// The words above the furthest place that the reader gets to.
    double wordsInAll() const;

    /// The lines of all paragraphs that reach between two heights; at least one.
    struct Lines {
        std::vector<PacedLine> lines;
        double wordsAbove = 0.0; ///< the first one
    };
    Lines linesBetween(double top, double bottom) const;

private:
    std::vector<PacedLine> withWords(const std::vector<LineBox>& boxes) const;

    const Script& script;
    const SpokenWordIndex& index;
    ReadingView& view;
};

} // namespace tessaline
