#include "render/markdown/CountablePieces.h"

#include <algorithm>

namespace tessaline {

namespace {

/// What a line begins with whose prefix, if it has one, is the same whatever is before that line.
/// White space is not among it, nor are markers that are gone when prefixes are looked for.
bool mayBeginPiece(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
           c == u'-' || c == u'+' || c == u'#' || c == u'>';
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
        ++openBrackets; // and if it goes, a parenthesis behind it comes next to the one before it
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

bool CountablePieces::mayCutBefore(qsizetype position) const {
    return position < text.size() && openBrackets == 0 && !openTarget && !closedBracket &&
           text[position - 1] == u'\n' && mayBeginPiece(text[position].unicode());
}

} // namespace tessaline
