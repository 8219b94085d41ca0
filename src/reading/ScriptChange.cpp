#include "reading/ScriptChange.h"

#include <algorithm>

namespace tessaline {

namespace {

/// Where the text of the paragraphs before `index` ends, newlines included.
qsizetype startOf(const Script& script, std::size_t index) {
    return index < script.paragraphs.size() ? script.paragraphs[index].start : script.length();
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

TextChange ScriptChange::textChange(const Script& before, const Script& after) const {
    const qsizetype oldEnd = startOf(before, first + oldCount);
    const qsizetype newEnd = startOf(after, first + newCount);
    const qsizetype begin =
        std::min({startOf(before, first), startOf(after, first), oldEnd, newEnd});
    return {begin, before.text(begin, oldEnd), after.text(begin, newEnd)};
}

qsizetype ScriptChange::movedOffset(qsizetype offset, const Script& before, const Script& after,
                                    const ScriptChange& change) {
    const qsizetype changeBegin = startOf(before, change.first);
    const qsizetype oldEnd = startOf(before, change.first + change.oldCount);
    const qsizetype newEnd = startOf(after, change.first + change.newCount);
    if (offset <= changeBegin) return std::min(offset, after.length());
    if (offset >= oldEnd) return std::min(offset + newEnd - oldEnd, after.length());
    return offset - changeBegin <= oldEnd - offset ? std::min(changeBegin, newEnd) : newEnd;
}

} // namespace tessaline
