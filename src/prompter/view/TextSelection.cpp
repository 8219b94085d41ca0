#include "prompter/view/TextSelection.h"

#include "reading/Script.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace tessaline {

namespace {

/// The line around an offset, without its newline. Boundaries are looked for within it only, so
/// that the cost depends on the line and not on the text.
TextRange lineAround(const Script& script, qsizetype offset) {
    std::size_t first = script.paragraphOf(offset);
    std::size_t last = first;
    while (script.paragraphs[first].continuesPrevious)
        --first;
    while (script.paragraphs[last].continuesInNext)
        ++last;
    return {script.paragraphs[first].start,
            script.paragraphs[last].start + script.paragraphs[last].length};
}

/// As much of a line around an offset as any word takes, for lines that are whole books.
TextRange vicinity(const TextRange& line, qsizetype offset) {
    constexpr qsizetype longestWord = 4096;
    return line.intersected({offset - longestWord, offset + longestWord});
}

QTextBoundaryFinder finderFor(const Script& script, const TextRange& line,
                              TextSelection::Unit unit) {
    const auto type = unit == TextSelection::Unit::word ? QTextBoundaryFinder::Word
                                                        : QTextBoundaryFinder::Grapheme;
    return QTextBoundaryFinder(type, script.text(line.begin, line.end));
}

bool startsWord(const QTextBoundaryFinder& finder) {
    return finder.boundaryReasons().testFlag(QTextBoundaryFinder::StartOfItem);
}

} // namespace

TextRange unitAround(const Script& script, qsizetype offset, TextSelection::Unit unit) {
    const TextRange whole = lineAround(script, offset);
    if (unit == TextSelection::Unit::paragraph || whole.isEmpty()) return whole;
    const TextRange line = vicinity(whole, offset);
    auto finder = finderFor(script, line, unit);
    const qsizetype inLine = std::min(offset, line.end - 1) - line.begin;
    finder.setPosition(inLine);
    const qsizetype begin = finder.isAtBoundary() ? inLine : finder.toPreviousBoundary();
    finder.setPosition(inLine);
    const qsizetype end = finder.toNextBoundary();
    return {line.begin + std::max<qsizetype>(begin, 0), end < 0 ? line.end : line.begin + end};
}

void TextSelection::moveTo(qsizetype offset, bool extend) {
    caretOffset = offset;
    if (!extend) anchorOffset = offset;
}

void TextSelection::selectUnit(const Script& script, qsizetype offset, Unit unit) {
    origin = unitAround(script, offset, unit);
    anchorOffset = origin.begin;
    caretOffset = origin.end;
}

void TextSelection::extendByUnit(const Script& script, qsizetype offset, Unit unit) {
    if (unit == Unit::character) return moveTo(offset, true);
    const TextRange reached = unitAround(script, offset, unit);
    const bool backwards = reached.begin < origin.begin;
    anchorOffset = backwards ? origin.end : origin.begin;
    caretOffset = backwards ? reached.begin : std::max(reached.end, origin.end);
}

qsizetype TextSelection::neighbour(const Script& script, Unit unit, bool forward) const {
    const TextRange whole = lineAround(script, caretOffset);
    if (forward && caretOffset == whole.end) return std::min(whole.end + 1, script.length());
    if (!forward && caretOffset == whole.begin) return std::max<qsizetype>(whole.begin - 1, 0);
    const TextRange line = vicinity(whole, caretOffset);
    auto finder = finderFor(script, line, unit);
    finder.setPosition(caretOffset - line.begin);
    qsizetype found = forward ? finder.toNextBoundary() : finder.toPreviousBoundary();
    while (unit == Unit::word && found > 0 && found < line.length() && !startsWord(finder))
        found = forward ? finder.toNextBoundary() : finder.toPreviousBoundary();
    if (found < 0) return forward ? line.end : line.begin;
    return line.begin + found;
}

void TextSelection::selectAll(const Script& script) {
    anchorOffset = 0;
    caretOffset = script.length();
}

TextRange TextSelection::range() const {
    return {std::min(anchorOffset, caretOffset), std::max(anchorOffset, caretOffset)};
}

} // namespace tessaline
