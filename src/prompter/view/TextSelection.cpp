#include "prompter/view/TextSelection.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace tessaline {

namespace {

/// The line around an offset, without its newline. Boundaries are looked for within it only, so
/// that the cost depends on the line and not on the text.
TextRange lineAround(const QString& text, qsizetype offset) {
    const qsizetype begin = offset == 0 ? 0 : text.lastIndexOf(u'\n', offset - 1) + 1;
    const qsizetype newline = text.indexOf(u'\n', offset);
    return {begin, newline < 0 ? text.size() : newline};
}

/// As much of a line around an offset as any word takes, for lines that are whole books.
TextRange vicinity(const TextRange& line, qsizetype offset) {
    constexpr qsizetype longestWord = 4096;
    return line.intersected({offset - longestWord, offset + longestWord});
}

QTextBoundaryFinder finderFor(const QString& text, const TextRange& line,
                              TextSelection::Unit unit) {
    const auto type = unit == TextSelection::Unit::word ? QTextBoundaryFinder::Word
                                                        : QTextBoundaryFinder::Grapheme;
    return QTextBoundaryFinder(type, text.mid(line.begin, line.length()));
}

bool startsWord(const QTextBoundaryFinder& finder) {
    return finder.boundaryReasons().testFlag(QTextBoundaryFinder::StartOfItem);
}

} // namespace

TextRange unitAround(const QString& text, qsizetype offset, TextSelection::Unit unit) {
    const TextRange whole = lineAround(text, offset);
    if (unit == TextSelection::Unit::paragraph || whole.isEmpty()) return whole;
    const TextRange line = vicinity(whole, offset);
    auto finder = finderFor(text, line, unit);
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

void TextSelection::selectUnit(const QString& text, qsizetype offset, Unit unit) {
    origin = unitAround(text, offset, unit);
    anchorOffset = origin.begin;
    caretOffset = origin.end;
}

void TextSelection::extendByUnit(const QString& text, qsizetype offset, Unit unit) {
    if (unit == Unit::character) return moveTo(offset, true);
    const TextRange reached = unitAround(text, offset, unit);
    const bool backwards = reached.begin < origin.begin;
    anchorOffset = backwards ? origin.end : origin.begin;
    caretOffset = backwards ? reached.begin : std::max(reached.end, origin.end);
}

qsizetype TextSelection::neighbour(const QString& text, Unit unit, bool forward) const {
    const TextRange whole = lineAround(text, caretOffset);
    if (forward && caretOffset == whole.end) return std::min(whole.end + 1, text.size());
    if (!forward && caretOffset == whole.begin) return std::max<qsizetype>(whole.begin - 1, 0);
    const TextRange line = vicinity(whole, caretOffset);
    auto finder = finderFor(text, line, unit);
    finder.setPosition(caretOffset - line.begin);
    qsizetype found = forward ? finder.toNextBoundary() : finder.toPreviousBoundary();
    while (unit == Unit::word && found > 0 && found < line.length() && !startsWord(finder))
        found = forward ? finder.toNextBoundary() : finder.toPreviousBoundary();
    if (found < 0) return forward ? line.end : line.begin;
    return line.begin + found;
}

void TextSelection::selectAll(const QString& text) {
    anchorOffset = 0;
    caretOffset = text.size();
}

TextRange TextSelection::range() const {
    return {std::min(anchorOffset, caretOffset), std::max(anchorOffset, caretOffset)};
}

} // namespace tessaline
