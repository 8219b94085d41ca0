#include "render/markdown/CountablePieces.h"

#include <algorithm>
#include <cstdint>

namespace tessaline {

namespace {

/// What a line begins with whose prefix, if it has one, is the same whatever is before that line.
/// White space is not among it, nor are markers that are gone when prefixes are looked for.
bool mayBeginPiece(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
           c == u'-' || c == u'+' || c == u'#' || c == u'>';
}

constexpr qsizetype stretch = 32;

/// Whether one of the next `stretch` characters is more than a part of a word. The loop has a fixed
/// length and no exit, so that the compiler vectorises it.
bool hasSyntax(const char16_t* characters) {
    std::uint16_t found = 0; // as wide as the characters, for the same reason
    for (qsizetype i = 0; i < stretch; ++i) {
        const char16_t c = characters[i];
        found |=
            std::uint16_t((c == u'[') | (c == u']') | (c == u'(') | (c == u')') | (c == u'\n'));
    }
    return found != 0;
}

} // namespace

CountablePieces::CountablePieces(QStringView whole, qsizetype shortestPiece, qsizetype from)
    : text(whole), shortest(shortestPiece), begin(from) {}

/// Brackets within what may be a target are gone if it is one: there, they only ever keep pieces
/// together.
inline void CountablePieces::pass(char16_t character) {
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

QStringView CountablePieces::next(qsizetype goal) {
    const qsizetype start = begin;
    const bool isLast = goal == text.size() && text.size() - start <= 2 * shortest;
    if (isLast) begin = text.size();
    while (begin < text.size()) {
        const qsizetype end = std::min(begin + stretch, text.size());
        if (!closedBracket && end - begin == stretch && !hasSyntax(text.utf16() + begin)) {
            begin = end;
        } else if (passUntil(end, goal, start + shortest)) {
            break;
        }
    }
    return text.sliced(start, begin - start);
}

/// Stops and returns true where a piece ends that may from `least` on.
bool CountablePieces::passUntil(qsizetype end, qsizetype goal, qsizetype least) {
    while (begin < end) {
        const char16_t character = text[begin++].unicode();
        pass(character);
        if (character == u'\n' && (begin == goal || begin >= least) && mayCutHere()) return true;
    }
    return false;
}

/// At the beginning of a line.
bool CountablePieces::mayCutHere() const {
    return begin < text.size() && openBrackets == 0 && !openTarget && !closedBracket &&
           mayBeginPiece(text[begin].unicode());
}

} // namespace tessaline
