#include "reading/ScriptChange.h"

#include <algorithm>

namespace tessaline {

namespace {

/// Where the text of the paragraphs before `index` ends, newlines included.
qsizetype startOf(const Script& script, std::size_t index) {
    return index < script.paragraphs.size() ? script.paragraphs[index].start
                                            : script.styled.text.size();
}

} // namespace

ScriptChange ScriptChange::between(const Script& before, const Script& after) {
    const std::size_t oldSize = before.paragraphs.size();
    const std::size_t newSize = after.paragraphs.size();
    const std::size_t shorter = std::min(oldSize, newSize);
    std::size_t first = 0;
    while (first < shorter && after.hasSameParagraph(first, before, first))
        ++first;
    std::size_t last = 0;
    while (last < shorter - first &&
           after.hasSameParagraph(newSize - 1 - last, before, oldSize - 1 - last))
        ++last;
    return {first, oldSize - first - last, newSize - first - last};
}

qsizetype ScriptChange::movedOffset(qsizetype offset, const Script& before, const Script& after,
                                    const ScriptChange& change) {
    const qsizetype changeBegin = startOf(before, change.first);
    const qsizetype oldEnd = startOf(before, change.first + change.oldCount);
    const qsizetype newEnd = startOf(after, change.first + change.newCount);
    if (offset <= changeBegin) return std::min(offset, after.styled.text.size());
    if (offset >= oldEnd) return std::min(offset + newEnd - oldEnd, after.styled.text.size());
    return offset - changeBegin <= oldEnd - offset ? std::min(changeBegin, newEnd) : newEnd;
}

} // namespace tessaline
