#include "reading/pace/SpokenWordIndex.h"

#include "reading/Script.h"
#include "reading/ScriptChange.h"
#include "reading/pace/SpokenWords.h"

namespace tessaline {

namespace {

constexpr int unknown = -1;
constexpr int unitsPerWord = 6;

int wordsOf(const Script& script, std::size_t index) {
    const Script::Paragraph& paragraph = script.paragraphs[index];
    if (paragraph.length == 0) return 0;
    if (script.length() > SpokenWordIndex::mostUnitsCounted) return paragraph.length / unitsPerWord;
    return int(spokenWordStarts(script.content(index).text, script.kind(index)).size());
}

} // namespace

void SpokenWordIndex::scriptChanged(const ScriptChange& change) {
    isCounted = false;
    if (counts.size() < change.first + change.oldCount) return counts.clear();
    const auto first = counts.begin() + std::ptrdiff_t(change.first);
    counts.insert(counts.erase(first, first + std::ptrdiff_t(change.oldCount)), change.newCount,
                  unknown);
}

qint64 SpokenWordIndex::before(const Script& script, std::size_t paragraph) const {
    if (!isCounted) count(script);
    return sums[paragraph];
}

void SpokenWordIndex::count(const Script& script) const {
    const std::size_t size = script.paragraphs.size();
    if (counts.size() != size) counts.assign(size, unknown);
    sums.assign(1, 0);
    sums.reserve(size + 1);
    for (std::size_t index = 0; index < size; ++index) {
        if (counts[index] < 0) counts[index] = wordsOf(script, index);
        sums.push_back(sums.back() + counts[index]);
    }
    isCounted = true;
}

} // namespace tessaline
