#include "render/markdown/WordCount.h"

#include "render/markdown/CharacterClasses.h"
#include "render/markdown/CountablePieces.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

namespace tessaline {

namespace {

/// A rewriting of a text in place, from front to back: stretches are kept or dropped. What lies at
/// or behind the reading position is always still the original.
class Compactor {
public:
    explicit Compactor(std::u16string& edited) : text(edited) {}

    QStringView original() const { return text; }

    void keepUntil(qsizetype end) {
        if (written != read)
            std::copy(text.begin() + read, text.begin() + end, text.begin() + written);
        written += end - read;
        read = end;
    }

    void dropUntil(qsizetype end) { read = end; }

    void finish() {
        keepUntil(qsizetype(text.size()));
        text.resize(std::size_t(written));
    }

private:
    std::u16string& text;
    qsizetype written = 0;
    qsizetype read = 0;
};

/// Where the next `wanted` lies at or after a position; remembers it, so that asking for rising
/// positions costs one pass over the text.
class Finder {
public:
    Finder(QStringView searched, char16_t wantedCharacter)
        : text(searched), wanted(wantedCharacter) {}

    /// The text's length if there is none.
    qsizetype next(qsizetype position) {
        if (found < position) {
            found = text.indexOf(wanted, position);
            if (found < 0) found = text.size();
        }
        return found;
    }

private:
    QStringView text;
    char16_t wanted;
    qsizetype found = -1;
};

constexpr qsizetype lineStretch = 32;

/// Whether one of the next `lineStretch` characters ends a line. The loop has a fixed length and no
/// exit, so that the compiler vectorises it.
bool stretchEndsLine(const char16_t* characters) {
    std::uint16_t found = 0; // as wide as the characters, for the same reason
    for (qsizetype i = 0; i < lineStretch; ++i)
        found |= std::uint16_t(isLineTerminator(characters[i]));
    return found != 0;
}

qsizetype nextLineStart(QStringView text, qsizetype position) {
    while (position + lineStretch <= text.size() && !stretchEndsLine(text.utf16() + position))
        position += lineStretch;
    while (position < text.size() && !isLineTerminator(text[position].unicode()))
        ++position;
    return position + 1;
}

bool isLineStart(QStringView text, qsizetype position) {
    return position == 0 || isLineTerminator(text[position - 1].unicode());
}

/// What a matcher found at a line start: a prefix that ends at `end`, or nothing, and then no line
/// start before `end` begins one either.
struct Prefix {
    bool found;
    qsizetype end;
};

/// Drops every prefix that `match` finds at the beginning of a line.
template <typename Matcher>
void dropPrefixes(std::u16string& text, Matcher match) {
    Compactor compactor(text);
    const QStringView original = compactor.original();
    for (qsizetype start = 0; start < original.size();) {
        const Prefix prefix = match(original, start);
        if (prefix.found) {
            compactor.keepUntil(start);
            compactor.dropUntil(prefix.end);
        }
        start = prefix.end > start && isLineStart(original, prefix.end)
                    ? prefix.end
                    : nextLineStart(original, std::max(prefix.end, start));
    }
    compactor.finish();
}

/// The same for prefixes that begin with one character, which is quicker to look for than line
/// starts.
template <typename Matcher>
void dropPrefixesOf(char16_t first, std::u16string& text, Matcher match) {
    Compactor compactor(text);
    const QStringView original = compactor.original();
    Finder candidates(original, first);
    for (qsizetype start = candidates.next(0); start < original.size();) {
        const Prefix prefix =
            isLineStart(original, start) ? match(original, start) : Prefix{false, start};
        if (prefix.found) {
            compactor.keepUntil(start);
            compactor.dropUntil(prefix.end);
        }
        start = candidates.next(std::max(prefix.end, start + 1));
    }
    compactor.finish();
}

Prefix matchHeader(QStringView text, qsizetype start) {
    qsizetype end = start;
    while (end < text.size() && end - start < 6 && text[end] == u'#')
        ++end;
    if (end == start) return {false, start};
    const qsizetype rest = skipWhitespace(text, end);
    return {rest > end, rest};
}

Prefix matchBullet(QStringView text, qsizetype start) {
    const qsizetype marker = skipWhitespace(text, start);
    if (marker == text.size() || (text[marker] != u'-' && text[marker] != u'+'))
        return {false, marker};
    const qsizetype rest = skipWhitespace(text, marker + 1);
    if (rest == marker + 1) return {false, marker};
    return {true, rest};
}

Prefix matchNumber(QStringView text, qsizetype start) {
    const qsizetype digits = skipWhitespace(text, start);
    const qsizetype period = skipDigits(text, digits);
    if (period == digits || period == text.size() || text[period] != u'.') return {false, period};
    const qsizetype rest = skipWhitespace(text, period + 1);
    if (rest == period + 1) return {false, period};
    return {true, rest};
}

Prefix matchRule(QStringView text, qsizetype start) {
    qsizetype end = start;
    while (end < text.size() && text[end] == u'-')
        ++end;
    const bool endsLine = end == text.size() || isLineTerminator(text[end].unicode());
    return {end - start >= 3 && endsLine, end};
}

void dropEmphasisAndCodeMarkers(std::u16string& text) {
    std::erase_if(text, [](char16_t c) { return c == u'*' || c == u'_' || c == u'`'; });
}

/// The parts of `[label](target)`.
struct Link {
    qsizetype labelBegin;
    qsizetype labelEnd;
    qsizetype end;
};

/// Finds links from front to back; all calls together are linear.
class LinkScanner {
public:
    explicit LinkScanner(QStringView scanned)
        : text(scanned), brackets(scanned, u']'), parentheses(scanned, u')') {}

    /// The link whose opening bracket is at `position`, if there is one.
    std::optional<Link> linkAt(qsizetype position) {
        const qsizetype bracket = brackets.next(position + 1);
        const qsizetype target = bracket + 2;
        if (target >= text.size() || text[bracket + 1] != u'(') return std::nullopt;
        const qsizetype parenthesis = parentheses.next(target);
        if (parenthesis == target || parenthesis == text.size()) return std::nullopt;
        return Link{position + 1, bracket, parenthesis + 1};
    }

private:
    QStringView text;
    Finder brackets;
    Finder parentheses;
};

/// Leaves the labels of links.
void unwrapLinks(std::u16string& text) {
    Compactor compactor(text);
    const QStringView original = compactor.original();
    LinkScanner links(original);
    Finder openings(original, u'[');
    for (qsizetype at = openings.next(0); at < original.size();) {
        const auto link = links.linkAt(at);
        if (link && link->labelEnd > link->labelBegin) {
            compactor.keepUntil(at);
            compactor.dropUntil(link->labelBegin);
            compactor.keepUntil(link->labelEnd);
            compactor.dropUntil(link->end);
            at = openings.next(link->end);
        } else {
            at = openings.next(at + 1);
        }
    }
    compactor.finish();
}

/// Drops what still looks like an image once links are unwrapped: those without a description.
void dropImages(std::u16string& text) {
    Compactor compactor(text);
    const QStringView original = compactor.original();
    LinkScanner links(original);
    Finder openings(original, u'!');
    for (qsizetype at = openings.next(0); at < original.size();) {
        const bool opens = at + 1 < original.size() && original[at + 1] == u'[';
        const auto image = opens ? links.linkAt(at + 1) : std::nullopt;
        if (image) {
            compactor.keepUntil(at);
            compactor.dropUntil(image->end);
        }
        at = openings.next(image ? image->end : at + 1);
    }
    compactor.finish();
}

/// How many stretches without whitespace there are.
qsizetype countRuns(QStringView text) {
    qsizetype runs = 0;
    bool inRun = false;
    for (const QChar c : text) {
        const bool isInRun = !isWhitespace(c.unicode());
        runs += isInRun && !inRun;
        inRun = isInRun;
    }
    return runs;
}

qsizetype countPiece(QStringView piece) {
    std::u16string text(piece.utf16(), std::size_t(piece.size()));
    // The order is part of the result: a link is unwrapped before images are looked for, so that an
    // image with a description counts as a word, and only rules of hyphens are left to be dropped
    // because the other markers are gone by then. So are the fences of code.
    dropPrefixesOf(u'#', text, matchHeader);
    dropEmphasisAndCodeMarkers(text);
    unwrapLinks(text);
    dropImages(text);
    dropPrefixes(text, matchBullet);
    dropPrefixes(text, matchNumber);
    dropPrefixesOf(u'-', text, matchRule);
    return countRuns(text);
}

} // namespace

qsizetype countWords(QStringView markdown, qsizetype shortestPiece) {
    qsizetype words = 0;
    for (CountablePieces pieces(markdown, shortestPiece); !pieces.isAtEnd();)
        words += countPiece(pieces.next());
    return words;
}

} // namespace tessaline
