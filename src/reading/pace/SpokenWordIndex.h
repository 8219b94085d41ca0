#pragma once

#include <QtGlobal>

#include <cstddef>
#include <vector>

namespace tessaline {

struct Script;
struct ScriptChange;

/// How many spoken words a script's paragraphs have. Counts when it is asked, and after a change
/// only what is new. Of scripts that nobody could read in a day, the counts are estimates.
class SpokenWordIndex {
public:
    /// Scripts of more UTF-16 units than this are not read for counting.
    static constexpr qsizetype mostUnitsCounted = 1'000'000;

    void scriptChanged(const ScriptChange& change);

    /// The words of all paragraphs before one; with their number as the index, those of all.
    qint64 before(const Script& script, std::size_t paragraph) const;

private:
    void count(const Script& script) const;

    mutable std::vector<int> counts; ///< unknown ones are negative
    mutable std::vector<qint64> sums;
    mutable bool isCounted = false;
};

} // namespace tessaline
