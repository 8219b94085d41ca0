#include "render/markdown/CountablePieces.h"

#include <algorithm>

namespace tessaline {

namespace {

bool isLetter(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

} // namespace

CountablePieces::CountablePieces(QStringView whole, qsizetype shortestPiece)
    : text(whole), shortest(shortestPiece) {}

QStringView CountablePieces::next() {
    const qsizetype start = begin;
    const bool isLast = text.size() - start <= 2 * shortest;
    if (isLast) begin = text.size();
    while (begin < text.size()) {
        pass(text[begin++].unicode());
        if (begin - start >= shortest && mayCutBefore(begin)) break;
    }
    return text.sliced(start, begin - start);
}

/// Brackets within what may be a target are gone if it is one: there, they only ever keep pieces
/// together.
void CountablePieces::pass(char16_t character) {
    switch (character) {
    case u'[':
        ++openBrackets;
        closedBracket = false;
        break;
    case u']':
        if (!openTarget) openBrackets = std::max<qsizetype>(openBrackets - 1, 0);
        closedBracket = true;
        break;
    case u'(':
        openTarget |= closedBracket;
        closedBracket = false;
        break;
    case u')':
        openTarget = false;
        closedBracket = false;
        break;
    case u'*':
    case u'_':
    case u'`':
        break; // goes before links are looked for
    default:
        closedBracket = false;
    }
}

/// A line that begins with a letter has no prefix, and ends those of blank lines before it.
bool CountablePieces::mayCutBefore(qsizetype position) const {
    return position < text.size() && openBrackets == 0 && !openTarget && !closedBracket &&
           text[position - 1] == u'\n' && isLetter(text[position].unicode());
}

} // namespace tessaline
